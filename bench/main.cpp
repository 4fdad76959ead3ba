#include "BenchPc.h"
#include "Ratios.h"

#include "Counts.h"

namespace {

QString name(const char* what, int number) {
    return QLatin1String(what) + QLatin1Char(' ') + QString::number(number);
}

void fill(BenchPc& pc) {
    for (int i = 0; i < Counts::programs; ++i) {
        pc.program(name("Steam App", i), name("Galactic Postman", i), name("C:\\Games\\Galactic Postman", i));
    }
    for (int i = 0; i < Counts::shortcuts; ++i) {
        pc.file(name("C:\\Menu\\Programs\\Folder", i % Counts::menuFolders) + name("\\Space Racer", i) +
                QLatin1String(".lnk"));
    }
    pc.steam(QStringLiteral("C:\\Steam\\steam.exe"));
    pc.file(QStringLiteral("C:\\Steam\\steam.exe"));
    for (int i = 0; i < Counts::apps; ++i) {
        pc.file(QLatin1String("C:\\Steam\\steamapps\\appmanifest_") + QString::number(i) + QLatin1String(".acf"));
    }
}

} // namespace

int main(int argc, char** argv) {
    BenchPc pc;
    fill(pc);
    pc.use();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    Ratios ratios;
    benchmark::RunSpecifiedBenchmarks(&ratios);
    benchmark::Shutdown();
    return 0;
}
