#include "catalogue/UninstallIndex.h"

#include <benchmark/benchmark.h>

#include <algorithm>

namespace {

UninstallIndex& index() {
    static UninstallIndex index;
    index.entries(); // so that no benchmark pays for the build
    return index;
}

QString lastName() {
    return index().entries().back().displayName.toUpper();
}

template <class Fits>
int countByWalk(Fits fits) {
    const std::list<UninstallEntry>& entries = index().entries();
    return static_cast<int>(std::count_if(entries.begin(), entries.end(), fits));
}

void buildIndex(benchmark::State& state) {
    for (auto _ : state) {
        UninstallIndex fresh;
        benchmark::DoNotOptimize(fresh.entries());
    }
}

void equalNameSearch(benchmark::State& state) {
    const QString name = lastName();
    for (auto _ : state) {
        benchmark::DoNotOptimize(index().findByName(name, 0));
    }
}

void equalNameWalk(benchmark::State& state) {
    const QString name = lastName();
    for (auto _ : state) {
        benchmark::DoNotOptimize(countByWalk([&name](const UninstallEntry& entry) {
            return entry.displayName.compare(name, Qt::CaseInsensitive) == 0;
        }));
    }
}

void containingNameSearch(benchmark::State& state) {
    const QString name = lastName().mid(1);
    for (auto _ : state) {
        benchmark::DoNotOptimize(index().findByName(name, MatchMode::contains));
    }
}

void containingNameWalk(benchmark::State& state) {
    const QString name = lastName().mid(1);
    for (auto _ : state) {
        benchmark::DoNotOptimize(countByWalk(
            [&name](const UninstallEntry& entry) { return entry.displayName.contains(name, Qt::CaseInsensitive); }));
    }
}

void keySearch(benchmark::State& state) {
    const QString keyPath = index().entries().back().keyPath;
    for (auto _ : state) {
        benchmark::DoNotOptimize(index().findByKeyPath(keyPath));
    }
}

void keyWalk(benchmark::State& state) {
    const QString keyPath = index().entries().back().keyPath;
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            countByWalk([&keyPath](const UninstallEntry& entry) { return entry.keyPath == keyPath; }));
    }
}

BENCHMARK(buildIndex)->Name("uninstall index/build")->Unit(benchmark::kMillisecond);
BENCHMARK(equalNameSearch)->Name("uninstall, equal name/search");
BENCHMARK(equalNameWalk)->Name("uninstall, equal name/walk");
BENCHMARK(containingNameSearch)->Name("uninstall, containing name/search");
BENCHMARK(containingNameWalk)->Name("uninstall, containing name/walk");
BENCHMARK(keySearch)->Name("uninstall, key/search");
BENCHMARK(keyWalk)->Name("uninstall, key/walk");

} // namespace
