#include "catalogue/StartMenuIndex.h"

#include <QFileInfo>

#include <benchmark/benchmark.h>

#include <algorithm>

namespace {

StartMenuIndex& index() {
    static StartMenuIndex index;
    index.entries(); // so that no benchmark pays for the build
    return index;
}

QString lastName() {
    return QFileInfo(index().entries().last()).completeBaseName().toUpper();
}

/// As a search would be without the index's table: it takes each path apart.
template <class Fits>
int countByWalk(Fits fits) {
    const QStringList& entries = index().entries();
    return static_cast<int>(std::count_if(entries.begin(), entries.end(), [&fits](const QString& shortcut) {
        return fits(QFileInfo(shortcut).completeBaseName());
    }));
}

void buildIndex(benchmark::State& state) {
    for (auto _ : state) {
        StartMenuIndex fresh;
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
        benchmark::DoNotOptimize(
            countByWalk([&name](const QString& shortcut) { return shortcut.compare(name, Qt::CaseInsensitive) == 0; }));
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
        benchmark::DoNotOptimize(
            countByWalk([&name](const QString& shortcut) { return shortcut.contains(name, Qt::CaseInsensitive); }));
    }
}

BENCHMARK(buildIndex)->Name("start menu index/build")->Unit(benchmark::kMillisecond);
BENCHMARK(equalNameSearch)->Name("start menu, equal name/search");
BENCHMARK(equalNameWalk)->Name("start menu, equal name/walk");
BENCHMARK(containingNameSearch)->Name("start menu, containing name/search");
BENCHMARK(containingNameWalk)->Name("start menu, containing name/walk");

} // namespace
