#include "Logs.h"

#include "support/KnownFolders.h"

#include <QDir>
#include <QFile>

namespace Logs {

namespace {

QString pathOf(const QString& logger) {
    return makeMakerFolderPath(FolderKind::localAppData, QStringLiteral("Logs")) + QDir::separator() + logger +
           QLatin1String(".log");
}

} // namespace

void remove(const QString& logger) {
    QFile::remove(pathOf(logger));
}

std::vector<std::string> pieces(const QString& logger) {
    QFile file(pathOf(logger));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("no log of %s", qUtf8Printable(logger));
    }
    std::vector<std::string> pieces;
    for (std::string opening = file.readLine().toStdString(); !file.atEnd(); opening.clear()) {
        pieces.push_back(opening + file.readLine().toStdString());
    }
    return pieces;
}

} // namespace Logs
