#include "fuzz/Fuzz.h"
#include "steam/SteamLibraryFolders.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

QStringList foldersIn(const QString& file, const QByteArray& text) {
    QFile vdf(file);
    Fuzz::require(vdf.open(QIODevice::WriteOnly) && vdf.write(text) == text.size(), "the file is written");
    vdf.close();
    return parseLibraryFolders(file);
}

} // namespace

/// Only folders that exist are listed, no more than lines name. What a file holds never hides a good line behind it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const QTemporaryDir scratch;
    const QString file = scratch.filePath(QStringLiteral("libraryfolders.vdf"));
    const QByteArray text = Fuzz::bytesOf(data, size);
    const QStringList folders = foldersIn(file, text);
    Fuzz::require(folders.size() <= text.count("\"path\""), "no more than lines name");
    for (const QString& folder : folders) {
        const QLatin1String end("/steamapps");
        Fuzz::require(folder.startsWith(QLatin1Char('/')) && folder.endsWith(end), "the folder of a library");
        const QString library = folder.left(folder.size() - end.size());
        Fuzz::require(QDir(library.isEmpty() ? QStringLiteral("/") : library).exists(), "that exists");
    }

    const QByteArray good = "\n\t\"path\"\t\t\"" + scratch.path().toUtf8() + "\"\r\n";
    const QStringList more = foldersIn(file, text + good);
    const bool isRead = !text.contains('\0'); // where the text ends
    Fuzz::require(more == (isRead ? folders + QStringList{scratch.path() + QLatin1String("/steamapps")} : folders),
                  "a good line counts");
    return 0;
}
