#pragma once

#include "core/IGameFinder.h"

#include <memory>
#include <vector>

namespace Finders {

/// Several finders as one: tries them in order, and the first that finds the game wins. What they find is not merged.
class MultiFinder final : public IGameFinder {
public:
    /// Takes over the finders that are not null and leaves the caller's pointers null.
    MultiFinder(std::unique_ptr<IGameFinder>&& finder1, std::unique_ptr<IGameFinder>&& finder2,
                std::unique_ptr<IGameFinder>&& finder3, std::unique_ptr<IGameFinder>&& finder4,
                std::unique_ptr<IGameFinder>&& finder5, std::unique_ptr<IGameFinder>&& finder6,
                std::unique_ptr<IGameFinder>&& finder7, std::unique_ptr<IGameFinder>&& finder8,
                std::unique_ptr<IGameFinder>&& finder9, std::unique_ptr<IGameFinder>&& finder10,
                std::unique_ptr<IGameFinder>&& finder11);

    /// The first member goes first.
    ~MultiFinder() override;

    /// A member that rests on the user's choice and fails ends the search: once the user has chosen a folder, no other
    /// method may replace it. After false the location holds what the last member that searched left there.
    bool find(GameLocation& location) override;

    /// The first user location that a member knows; empty when none does.
    QString userLocation() override;

    /// Hands the location to every member.
    void setUserLocation(const QString& path) override;

private:
    std::vector<std::unique_ptr<IGameFinder>> m_finders;
};

} // namespace Finders
