#include "Benchmarks.h"
#include "Figures.h"
#include "InstalledGames.h"

#include "catalogue/StartMenuIndex.h"
#include "catalogue/UninstallIndex.h"
#include "platform/Folders.h"
#include "support/KnownFolders.h"

#include <QProcess>

namespace {

void run(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(program, arguments);
    if (!process.waitForFinished(-1) || process.exitCode() != 0) {
        qFatal("%s has failed", qUtf8Printable(program));
    }
}

} // namespace

void Benchmarks::programs(const Figures& figures, int keys, int files) {
    const QString key = QStringLiteral("HKLM\\") + QString::fromUtf16(InstalledGames::uninstallKey);
    figures.of(keys).ratio(
        QStringLiteral("reg query"),
        [&key] {
            for (const char* const view : {"/reg:32", "/reg:64"}) {
                run(QStringLiteral("reg.exe"),
                    {QStringLiteral("query"), key, QStringLiteral("/s"), QLatin1String(view)});
            }
        },
        [] { UninstallIndex().entries(); });
    figures.of(files).ratio(
        QStringLiteral("cmd /C dir"),
        [] {
            for (const int csidl : {Platform::csidlStartMenu, Platform::csidlCommonStartMenu}) {
                run(QStringLiteral("cmd.exe"), {QStringLiteral("/C"), QStringLiteral("dir"), knownFolderPath(csidl),
                                                QStringLiteral("/S"), QStringLiteral("/B")});
            }
        },
        [] { StartMenuIndex().entries(); });
}

std::size_t Benchmarks::peakMemory(const std::function<void()>&) {
    return 0; // told by the native build, as the lists are made by the same code
}
