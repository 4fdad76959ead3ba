#include "core/plugin/FindersFactory.h"

#include "catalogue/GameForWindowFinder.h"
#include "catalogue/StartMenuFinder.h"
#include "catalogue/UninstallFinder.h"
#include "core/FolderFinder.h"
#include "core/MultiFinder.h"
#include "core/UserProvidedLocationFinder.h"
#include "core/plugin/FactoryState.h"
#include "runtimes/RuntimeLocators.h"
#include "steam/SteamFinder.h"
#include "steam/SteamLocator.h"
#include "steam/SteamVrAlternativeFinder.h"
#include "stores/EpicStoreFinder.h"
#include "stores/OculusLibraries.h"
#include "stores/OculusStoreFinder.h"
#include "stores/UniversalAppFinder.h"
#include "support/Paths.h"
#include "support/Trace.h"

namespace Finders {

std::unique_ptr<FactoryState> FindersFactory::makeState() {
    Trace::begin(); // first, so that it tells of the state's making
    return std::make_unique<FactoryState>();
}

FindersFactory::FindersFactory()
    : m_state(makeState()) {}

FindersFactory::~FindersFactory() = default;

std::unique_ptr<IGameFinder> FindersFactory::createUninstallFinder(const QString& displayName,
                                                                   const QStringList& executables, int matchMode) {
    return std::make_unique<UninstallFinder>(&m_state->logger, &m_state->uninstallIndex, displayName, executables,
                                             matchMode);
}

std::unique_ptr<IGameFinder> FindersFactory::createGameForWindowFinder(const QString& title,
                                                                       const QStringList& executables) {
    return std::make_unique<GameForWindowFinder>(&m_state->logger, &m_state->gamesExplorerIndex, title, executables);
}

std::unique_ptr<IGameFinder> FindersFactory::createSteamFinder(const QString& appId, const QString& installFolderName,
                                                               const QStringList& executables) {
    return std::make_unique<SteamFinder>(&m_state->logger, &m_state->uninstallIndex, &m_state->steamLibraryIndex, appId,
                                         installFolderName, executables);
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

std::unique_ptr<IGameFinder> FindersFactory::createStartMenuFinder(const QString& name, const QStringList& executables,
                                                                   int matchMode) {
    return std::make_unique<StartMenuFinder>(&m_state->logger, &m_state->startMenuIndex, name, executables, matchMode);
}

std::unique_ptr<IGameFinder> FindersFactory::createFolderFinder(const QString& folder, const QStringList& executables) {
    return std::make_unique<FolderFinder>(&m_state->logger, folder, executables);
}

std::unique_ptr<IGameFinder> FindersFactory::createOculusStoreFinder(const QString& appId,
                                                                     const QStringList& executables,
                                                                     const QString& softwareFolder) {
    return std::make_unique<OculusStoreFinder>(&m_state->logger, &m_state->oculusLibraryIndex, appId, executables,
                                               softwareFolder);
}

std::unique_ptr<IGameFinder> FindersFactory::createEpicStoreFinder(const QString& name, const QStringList& executables,
                                                                   int matchMode) {
    return std::make_unique<EpicStoreFinder>(&m_state->logger, &m_state->epicManifestIndex, name, executables,
                                             matchMode);
}

std::unique_ptr<IGameFinder> FindersFactory::createUniversalAppFinder(const QString& packageFamily) {
    return std::make_unique<UniversalAppFinder>(&m_state->logger, packageFamily);
}

std::unique_ptr<IGameFinder> FindersFactory::createUserProvidedLocationFinder(const QString& key,
                                                                              const QStringList& executables) {
    return std::make_unique<UserProvidedLocationFinder>(&m_state->logger, key, executables);
}

QStringList FindersFactory::oculusLibraryFolders() {
    return ::oculusLibraryFolders(m_state->logger);
}

QString FindersFactory::oculusRuntimeFolder() {
    return Runtimes::oculusRuntimeFolder();
}

QString FindersFactory::steamExecutablePath() {
    return findSteamExecutable(m_state->logger);
}

QString FindersFactory::steamConfigFolder() {
    return findSteamConfigFolder(m_state->logger);
}

QString FindersFactory::varjoRuntimeFolder() {
    return Runtimes::varjoRuntimeFolder();
}

QString FindersFactory::openXrActiveRuntime() {
    return Runtimes::openXrActiveRuntime();
}

QString FindersFactory::lumavexStandaloneLocation() {
    return Runtimes::lumavexStandaloneLocation();
}

QString FindersFactory::steamVrFolder() {
    const QStringList server{QStringLiteral("bin\\win64\\vrserver.exe")};
    std::unique_ptr<IGameFinder> alternative = std::make_unique<SteamVrAlternativeFinder>(&m_state->logger);
    std::unique_ptr<IGameFinder> uninstall =
        createUninstallFinder(QStringLiteral("SteamVR"), server, MatchMode::equals);
    std::unique_ptr<IGameFinder> steam = createSteamFinder(QStringLiteral("250820"), QStringLiteral("SteamVR"), server);
    const std::unique_ptr<IGameFinder> finder =
        createMultiFinder(std::move(steam), std::move(uninstall), std::move(alternative), nullptr, nullptr, nullptr,
                          nullptr, nullptr, nullptr, nullptr, nullptr);
    GameLocation location;
    return Paths::cleaned(finder->find(location) ? location.installFolder.trimmed() : QString());
}

} // namespace Finders
