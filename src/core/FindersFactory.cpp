#include "core/FindersFactory.h"

#include "catalogue/GamesExplorerIndex.h"
#include "catalogue/StartMenuIndex.h"
#include "catalogue/UninstallIndex.h"
#include "core/FolderFinder.h"
#include "core/MultiFinder.h"
#include "steam/SteamLibraryIndex.h"
#include "stores/EpicManifestIndex.h"
#include "stores/OculusLibraryIndex.h"
#include "support/Logger.h"

namespace Finders {

/// The order matters: the logger is made last and goes first, so its file is closed before any index is torn down.
struct FindersFactory::State {
    UninstallIndex uninstallIndex;
    GamesExplorerIndex gamesExplorerIndex;
    StartMenuIndex startMenuIndex;
    SteamLibraryIndex steamLibraryIndex;
    OculusLibraryIndex oculusLibraryIndex;
    EpicManifestIndex epicManifestIndex;
    Logger logger = Logger::create("Quorvan.Finders");
};

FindersFactory::FindersFactory()
    : m_state(std::make_unique<State>()) {}

FindersFactory::~FindersFactory() = default;

std::unique_ptr<IGameFinder> FindersFactory::createUninstallFinder(const QString&, const QStringList&, int) {
    return nullptr;
}

std::unique_ptr<IGameFinder> FindersFactory::createGameForWindowFinder(const QString&, const QStringList&) {
    return nullptr;
}

std::unique_ptr<IGameFinder> FindersFactory::createSteamFinder(const QString&, const QString&, const QStringList&) {
    return nullptr;
}

std::unique_ptr<IGameFinder>
FindersFactory::createMultiFinder(std::unique_ptr<IGameFinder>&& finder1, std::unique_ptr<IGameFinder>&& finder2,
                                  std::unique_ptr<IGameFinder>&& finder3, std::unique_ptr<IGameFinder>&& finder4,
                                  std::unique_ptr<IGameFinder>&& finder5, std::unique_ptr<IGameFinder>&& finder6,
                                  std::unique_ptr<IGameFinder>&& finder7, std::unique_ptr<IGameFinder>&& finder8,
                                  std::unique_ptr<IGameFinder>&& finder9, std::unique_ptr<IGameFinder>&& finder10,
                                  std::unique_ptr<IGameFinder>&& finder11) {
    return std::make_unique<MultiFinder>(std::move(finder1), std::move(finder2), std::move(finder3), std::move(finder4),
                                         std::move(finder5), std::move(finder6), std::move(finder7), std::move(finder8),
                                         std::move(finder9), std::move(finder10), std::move(finder11));
}

std::unique_ptr<IGameFinder> FindersFactory::createStartMenuFinder(const QString&, const QStringList&, int) {
    return nullptr;
}

std::unique_ptr<IGameFinder> FindersFactory::createFolderFinder(const QString& folder, const QStringList& executables) {
    return std::make_unique<FolderFinder>(&m_state->logger, folder, executables);
}

std::unique_ptr<IGameFinder> FindersFactory::createOculusStoreFinder(const QString&, const QStringList&,
                                                                     const QString&) {
    return nullptr;
}

std::unique_ptr<IGameFinder> FindersFactory::createEpicStoreFinder(const QString&, const QStringList&, int) {
    return nullptr;
}

std::unique_ptr<IGameFinder> FindersFactory::createUniversalAppFinder(const QString&) {
    return nullptr;
}

std::unique_ptr<IGameFinder> FindersFactory::createUserProvidedLocationFinder(const QString&, const QStringList&) {
    return nullptr;
}

QStringList FindersFactory::oculusLibraryFolders() {
    return {};
}

QString FindersFactory::oculusRuntimeFolder() {
    return {};
}

QString FindersFactory::steamExecutablePath() {
    return {};
}

QString FindersFactory::steamConfigFolder() {
    return {};
}

QString FindersFactory::varjoRuntimeFolder() {
    return {};
}

QString FindersFactory::openXrActiveRuntime() {
    return {};
}

QString FindersFactory::lumavexStandaloneLocation() {
    return {};
}

QString FindersFactory::steamVrFolder() {
    return {};
}

} // namespace Finders
