#pragma once

#include "core/IGameFinderFactory.h"

namespace Finders {

struct FactoryState;

/// The factory that the host gets: owns the log file and the indexes of installed software that its finders share.
/// Nothing is looked up before a finder asks, and two factories share nothing.
class FindersFactory : public IGameFinderFactory {
public:
    FindersFactory();
    ~FindersFactory() override;

    std::unique_ptr<IGameFinder> createUninstallFinder(const QString& displayName, const QStringList& executables,
                                                       int matchMode) override;
    std::unique_ptr<IGameFinder> createGameForWindowFinder(const QString& title,
                                                           const QStringList& executables) override;
    std::unique_ptr<IGameFinder> createSteamFinder(const QString& appId, const QString& installFolderName,
                                                   const QStringList& executables) override;
    std::unique_ptr<IGameFinder>
    createMultiFinder(std::unique_ptr<IGameFinder>&& finder1, std::unique_ptr<IGameFinder>&& finder2,
                      std::unique_ptr<IGameFinder>&& finder3, std::unique_ptr<IGameFinder>&& finder4,
                      std::unique_ptr<IGameFinder>&& finder5, std::unique_ptr<IGameFinder>&& finder6,
                      std::unique_ptr<IGameFinder>&& finder7, std::unique_ptr<IGameFinder>&& finder8,
                      std::unique_ptr<IGameFinder>&& finder9, std::unique_ptr<IGameFinder>&& finder10,
                      std::unique_ptr<IGameFinder>&& finder11) override;
    std::unique_ptr<IGameFinder> createStartMenuFinder(const QString& name, const QStringList& executables,
                                                       int matchMode) override;
    std::unique_ptr<IGameFinder> createFolderFinder(const QString& folder, const QStringList& executables) override;
    std::unique_ptr<IGameFinder> createOculusStoreFinder(const QString& appId, const QStringList& executables,
                                                         const QString& softwareFolder) override;
    std::unique_ptr<IGameFinder> createEpicStoreFinder(const QString& name, const QStringList& executables,
                                                       int matchMode) override;
    std::unique_ptr<IGameFinder> createUniversalAppFinder(const QString& packageFamily) override;
    std::unique_ptr<IGameFinder> createUserProvidedLocationFinder(const QString& key,
                                                                  const QStringList& executables) override;
    QStringList oculusLibraryFolders() override;
    QString oculusRuntimeFolder() override;
    QString steamExecutablePath() override;
    QString steamConfigFolder() override;
    QString varjoRuntimeFolder() override;
    QString openXrActiveRuntime() override;
    QString lumavexStandaloneLocation() override;
    QString steamVrFolder() override;

private:
    static std::unique_ptr<FactoryState> makeState();

    std::unique_ptr<FactoryState> m_state;
};

} // namespace Finders
