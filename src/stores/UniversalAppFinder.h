#pragma once

#include "core/AbstractFinder.h"

#include <string>

namespace Finders {

/// Finds a Windows app package by its family name: its first installed package and that package's first application,
/// which is started by "uapp://…". Asks the system at every search.
class UniversalAppFinder final : public AbstractFinder {
public:
    UniversalAppFinder(Logger* logger, const QString& packageFamily);

    /// The `installFolder` is the package's full name, no folder; there are no executables. False with the location
    /// untouched when there is no such package or it holds no application, and on a system that knows no packages.
    bool find(GameLocation& location) override;

private:
    std::u16string m_packageFamily;
};

} // namespace Finders
