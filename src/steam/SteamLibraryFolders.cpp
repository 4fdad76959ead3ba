#include "steam/SteamLibraryFolders.h"

#include "support/Files.h"
#include "support/Paths.h"
#include "support/Text.h"
#include "trace/ForeignFiles.h"

#include <optional>

namespace {

/// The path in a line `"path"  "D:\\SteamLibrary"`, its backslashes left doubled; empty in any other line.
std::optional<QString> libraryIn(const QString& line) {
    const QLatin1String key = ForeignFiles::SteamLibraryFolders::pathKey;
    const QString trimmed = line.trimmed();
    if (!trimmed.startsWith(key)) {
        return std::nullopt;
    }
    return Text::unquote(trimmed.mid(key.size()).trimmed());
}

} // namespace

QStringList parseLibraryFolders(const QString& vdfPath) {
    const QString text = QString::fromUtf8(Files::readWholeFile(vdfPath).constData()); // up to the first 0
    QStringList folders;
    const QStringList lines = text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        const std::optional<QString> library = libraryIn(line);
        if (library && Files::folderExists(*library)) {
            folders.append(Paths::absoluteFolder(*library) + QLatin1String("/steamapps"));
        }
    }
    return folders;
}
