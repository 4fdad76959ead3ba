#include "BenchPc.h"
#include "Benchmarks.h"
#include "Figures.h"
#include "InstalledGames.h"

#include <QCoreApplication>

#include <cstdio>

namespace {

constexpr int filesPerKey = 2; ///< Start menus have more shortcuts than registries have programs
constexpr double seconds = 3;  ///< a figure

} // namespace

/// luruludri-bench KEYS PLUGIN [--once]: the figures of a PC with so many programs, as lines of JSON.
int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int keys = arguments.value(1).toInt();
    if (keys <= 0 || arguments.size() < 3) {
        std::fputs("usage: luruludri-bench KEYS PLUGIN [--once]\n", stderr);
        return 2;
    }
    const int files = keys * filesPerKey;
    BenchPc pc;
    InstalledGames::install(pc, keys, files);
    pc.use();
    if (arguments.contains(QLatin1String("--calls"))) {
        Benchmarks::calls(arguments.at(2));
        return 0;
    }
    const Figures figures(keys, arguments.contains(QLatin1String("--once")) ? 0 : seconds);
    Benchmarks::builds(figures, keys, files);
    Benchmarks::programs(figures, keys, files);
    Benchmarks::searches(figures, keys, files);
    Benchmarks::plugin(figures, arguments.at(2));
    return 0;
}
