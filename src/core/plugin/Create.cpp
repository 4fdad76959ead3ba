#include "core/plugin/FindersFactory.h"

extern "C" Q_DECL_EXPORT IGameFinderFactory* Create();

IGameFinderFactory* Create() {
    return std::make_unique<Finders::FindersFactory>().release();
}
