#include "steam/SteamLibraryIndex.h"

#include <benchmark/benchmark.h>

#include <algorithm>

namespace {

SteamLibraryIndex& index() {
    static SteamLibraryIndex index;
    index.entries(); // so that no benchmark pays for the build
    return index;
}

void buildIndex(benchmark::State& state) {
    for (auto _ : state) {
        SteamLibraryIndex fresh;
        benchmark::DoNotOptimize(fresh.entries());
    }
}

void idSearch(benchmark::State& state) {
    const QString appId = index().entries().back().appId;
    for (auto _ : state) {
        benchmark::DoNotOptimize(index().findByAppId(appId));
    }
}

void idWalk(benchmark::State& state) {
    const std::list<SteamAppEntry>& entries = index().entries();
    const QString appId = entries.back().appId;
    for (auto _ : state) {
        benchmark::DoNotOptimize(std::count_if(entries.begin(), entries.end(),
                                               [&appId](const SteamAppEntry& entry) { return entry.appId == appId; }));
    }
}

BENCHMARK(buildIndex)->Name("steam library index/build")->Unit(benchmark::kMillisecond);
BENCHMARK(idSearch)->Name("steam, app id/search");
BENCHMARK(idWalk)->Name("steam, app id/walk");

} // namespace
