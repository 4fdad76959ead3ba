#pragma once

#include "core/AbstractFinder.h"

namespace Finders {

/// Finds SteamVR through the command that is registered for its monitor's URLs, without the Steam client. Tells what it
/// reads in Qt's message log.
class SteamVrAlternativeFinder final : public AbstractFinder {
public:
    explicit SteamVrAlternativeFinder(Logger* logger);

    /// Adds to what the location holds already, without resetting it; false leaves it untouched. The install folder
    /// ends with its separator.
    bool find(GameLocation& location) override;
};

} // namespace Finders
