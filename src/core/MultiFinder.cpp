#include "core/MultiFinder.h"

#include "support/Trace.h"

namespace Finders {

namespace {

void takeOver(std::vector<std::unique_ptr<IGameFinder>>& finders, std::unique_ptr<IGameFinder>&& finder) {
    if (finder) {
        finders.push_back(std::move(finder));
    }
}

bool tracedFind(IGameFinder& finder, std::size_t number, GameLocation& location) {
    Trace::FinderSection section(number);
    const bool found = finder.find(location);
    section.setFound(found);
    return found;
}

} // namespace

MultiFinder::MultiFinder(std::unique_ptr<IGameFinder>&& finder1, std::unique_ptr<IGameFinder>&& finder2,
                         std::unique_ptr<IGameFinder>&& finder3, std::unique_ptr<IGameFinder>&& finder4,
                         std::unique_ptr<IGameFinder>&& finder5, std::unique_ptr<IGameFinder>&& finder6,
                         std::unique_ptr<IGameFinder>&& finder7, std::unique_ptr<IGameFinder>&& finder8,
                         std::unique_ptr<IGameFinder>&& finder9, std::unique_ptr<IGameFinder>&& finder10,
                         std::unique_ptr<IGameFinder>&& finder11) {
    constexpr std::size_t mostFinders = 11;
    m_finders.reserve(mostFinders); // so that nothing can throw once the first finder is taken over
    takeOver(m_finders, std::move(finder1));
    takeOver(m_finders, std::move(finder2));
    takeOver(m_finders, std::move(finder3));
    takeOver(m_finders, std::move(finder4));
    takeOver(m_finders, std::move(finder5));
    takeOver(m_finders, std::move(finder6));
    takeOver(m_finders, std::move(finder7));
    takeOver(m_finders, std::move(finder8));
    takeOver(m_finders, std::move(finder9));
    takeOver(m_finders, std::move(finder10));
    takeOver(m_finders, std::move(finder11));
}

MultiFinder::~MultiFinder() {
    // First to last: some vectors begin with the last.
    for (std::unique_ptr<IGameFinder>& finder : m_finders) {
        finder.reset();
    }
}

bool MultiFinder::find(GameLocation& location) {
    std::size_t number = 0;
    for (const std::unique_ptr<IGameFinder>& finder : m_finders) {
        if (tracedFind(*finder, ++number, location)) {
            return true;
        }
        if (!finder->userLocation().isEmpty()) {
            Trace::note("The user has chosen a folder for this game, so no other finder is asked.");
            return false;
        }
    }
    return false;
}

QString MultiFinder::userLocation() {
    QString location;
    for (const std::unique_ptr<IGameFinder>& finder : m_finders) {
        location = finder->userLocation();
        if (!location.isEmpty()) {
            break;
        }
    }
    return location;
}

void MultiFinder::setUserLocation(const QString& path) {
    for (const std::unique_ptr<IGameFinder>& finder : m_finders) {
        finder->setUserLocation(path);
    }
}

} // namespace Finders
