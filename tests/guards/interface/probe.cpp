// What makes the compiler lay out all that a host and the plug-in share.

#include <luruludri/IGameFinderFactory.h>

class Finder : public IGameFinder {
public:
    Finder();
};

Finder::Finder() {}

class Factory : public IGameFinderFactory {
public:
    Factory();
};

Factory::Factory() {}

static_assert(sizeof(GameLocation) > 0);
