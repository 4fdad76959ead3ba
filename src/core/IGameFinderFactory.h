#pragma once

#include "GameLocation.h"
#include "IGameFinder.h"

#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <memory>

/// The plug-in's root object: makes finders and answers where the VR runtimes and the Steam client are. `Create` makes
/// one; the host owns it and deletes it after all its finders.
///
/// What it has looked up once (the lists of installed programs) it keeps: what is installed later is seen by a new
/// factory only. The factory is called from one thread at a time.
///
/// Each create operation returns a new finder that the caller owns; its arguments are copied. Where a finder takes
/// `executables`, these are file names or paths relative to the install folder, the preferred one first. Where it
/// takes a `matchMode`, 1 means that the catalogue's name must contain the searched one, any other value that it must
/// equal it; letter case never matters.
///
/// Each question returns an empty result when the thing is not installed. Nothing throws but for want of memory
/// (std::bad_alloc).
///
/// The order of the virtual operations is the binary interface.
class IGameFinderFactory {
public:
    /// Slot 0.
    virtual ~IGameFinderFactory() = default;

    /// Slot 1: a program in the Uninstall registry, by its display name.
    virtual std::unique_ptr<IGameFinder> createUninstallFinder(const QString& displayName,
                                                               const QStringList& executables, int matchMode) = 0;

    /// Slot 2: a game in the Windows Games Explorer, by its title.
    virtual std::unique_ptr<IGameFinder> createGameForWindowFinder(const QString& title,
                                                                   const QStringList& executables) = 0;

    /// Slot 3: a game of the Steam client; `installFolderName` is its folder's name in a library's "common" folder.
    virtual std::unique_ptr<IGameFinder> createSteamFinder(const QString& appId, const QString& installFolderName,
                                                           const QStringList& executables) = 0;

    /// Slot 4: up to eleven finders, tried in order until one finds the game, or until one fails for which the user has
    /// chosen a folder (`userLocation`): the user's choice ends the search. Takes the finders over and leaves the
    /// caller's pointers null; any of them may be null before.
    virtual std::unique_ptr<IGameFinder>
    createMultiFinder(std::unique_ptr<IGameFinder>&& finder1, std::unique_ptr<IGameFinder>&& finder2,
                      std::unique_ptr<IGameFinder>&& finder3, std::unique_ptr<IGameFinder>&& finder4,
                      std::unique_ptr<IGameFinder>&& finder5, std::unique_ptr<IGameFinder>&& finder6,
                      std::unique_ptr<IGameFinder>&& finder7, std::unique_ptr<IGameFinder>&& finder8,
                      std::unique_ptr<IGameFinder>&& finder9, std::unique_ptr<IGameFinder>&& finder10,
                      std::unique_ptr<IGameFinder>&& finder11) = 0;

    /// Slot 5: a program with a Start-menu shortcut of this name; `executables` are parts of the shortcut's target.
    virtual std::unique_ptr<IGameFinder> createStartMenuFinder(const QString& name, const QStringList& executables,
                                                               int matchMode) = 0;

    /// Slot 6: a game in a folder that is known beforehand.
    virtual std::unique_ptr<IGameFinder> createFolderFinder(const QString& folder, const QStringList& executables) = 0;

    /// Slot 7: a game of the Oculus store; `softwareFolder` is its folder's name in a library's "Software" folder.
    virtual std::unique_ptr<IGameFinder> createOculusStoreFinder(const QString& appId, const QStringList& executables,
                                                                 const QString& softwareFolder) = 0;

    /// Slot 8: a game of the Epic launcher, by its display name.
    virtual std::unique_ptr<IGameFinder> createEpicStoreFinder(const QString& name, const QStringList& executables,
                                                               int matchMode) = 0;

    /// Slot 9: a Windows app package, by its package family name.
    virtual std::unique_ptr<IGameFinder> createUniversalAppFinder(const QString& packageFamily) = 0;

    /// Slot 10: a game in the folder that the user chose for `key`; the choice is remembered per user.
    virtual std::unique_ptr<IGameFinder> createUserProvidedLocationFinder(const QString& key,
                                                                          const QStringList& executables) = 0;

    /// Slot 11: the "Manifests" folders of all usable Oculus libraries, with forward slashes.
    virtual QStringList oculusLibraryFolders() = 0;

    /// Slot 12: the Oculus runtime's folder.
    virtual QString oculusRuntimeFolder() = 0;

    /// Slot 13: the Steam client's executable.
    virtual QString steamExecutablePath() = 0;

    /// Slot 14: the Steam client's configuration folder, with forward slashes.
    virtual QString steamConfigFolder() = 0;

    /// Slot 15: the Varjo runtime's folder.
    virtual QString varjoRuntimeFolder() = 0;

    /// Slot 16: the manifest file of the active OpenXR runtime, as registered.
    virtual QString openXrActiveRuntime() = 0;

    /// Slot 17: the folder of the Lumavex standalone software, as registered.
    virtual QString lumavexStandaloneLocation() = 0;

    /// Slot 18: SteamVR's folder, with native separators.
    virtual QString steamVrFolder() = 0;

protected:
    IGameFinderFactory() = default;
    Q_DISABLE_COPY_MOVE(IGameFinderFactory)
};

/// The plug-in's one export, the plain C symbol "Create": a new factory, which the caller owns and deletes. Throws
/// std::bad_alloc when memory runs out.
using CreateFactoryFunction = IGameFinderFactory* (*)();
