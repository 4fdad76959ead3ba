#pragma once

#include <QString>
#include <QtGlobal>

struct GameLocation;

/// One way in which a game can be installed: looks in one place and says whether the game is there.
///
/// The factory makes finders and the host owns them; each must be destroyed before its factory, whose lists of what is
/// installed and whose log it borrows: asked anything later, it reads memory that is gone, and when the plug-in is no
/// longer loaded, it can't even be destroyed. A finder is used by one thread at a time; different finders of a factory
/// may work on different threads.
///
/// The order of the virtual operations is the binary interface.
class IGameFinder {
public:
    /// Slot 0.
    virtual ~IGameFinder() = default;

    /// Slot 1: searches now. True when the game was found, with `location` filled. False when not; `location` is then
    /// untouched if the finder had no place to look in, otherwise reset or partly filled.
    virtual bool find(GameLocation& location) = 0;

    /// Slot 2: the folder that the user chose for this game and that is remembered; empty when there is none. Of a
    /// multi finder, the first that one of its finders has. When it is not empty, a search in vain by this finder ends
    /// the search of the multi finder that holds it: the finders behind it are not asked.
    virtual QString userLocation() = 0;

    /// Slot 3: remembers a folder that the user chose; an empty one forgets it. A multi finder hands it on to all its
    /// finders; those that rest on no choice of the user's ignore it.
    virtual void setUserLocation(const QString& path) = 0;

protected:
    IGameFinder() = default;
    Q_DISABLE_COPY_MOVE(IGameFinder)
};
