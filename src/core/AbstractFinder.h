#pragma once

#include "core/IGameFinder.h"

class Logger;

namespace Finders {

/// The base of the finders that log: remembers no choice of the user's.
class AbstractFinder : public IGameFinder {
public:
    /// An empty string.
    QString userLocation() override;

    /// Does nothing.
    void setUserLocation(const QString& path) override;

protected:
    /// `logger` is the factory's: borrowed; must outlive the finder.
    explicit AbstractFinder(Logger* logger);

    Logger& logger() const { return *m_logger; }

private:
    Logger* m_logger;
};

} // namespace Finders
