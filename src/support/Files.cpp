#include "support/Files.h"

#include "platform/Folders.h"
#include "platform/Listing.h"
#include "support/Paths.h"
#include "support/Trace.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <optional>

namespace Files {

namespace {

bool told(const QString& path, bool found) {
    Trace::tell([&] { return Trace::Exists{Paths::toNative(path), found}; });
    return found;
}

/// A file's size is asked for only when it is not small, as Qt looks the file up by its path once more for that, which
/// takes longer than to open and read it.
QByteArray wholeOf(QFile& file, qint64 largest) {
    std::array<char, 8192> start;
    const qint64 size = std::max<qint64>(file.read(start.data(), static_cast<qint64>(start.size())), 0);
    const bool isAll = size < static_cast<qint64>(start.size());
    if ((isAll ? size : file.size()) > largest) {
        return QByteArray();
    }
    const QByteArray bytes(start.data(), static_cast<int>(size));
    return isAll ? bytes : bytes + file.readAll();
}

/// "C:\\…", and so short that Windows takes it as it is with all that it holds.
bool isPlainPath(const QString& path) {
    return path.size() < static_cast<int>(Platform::maxPath) - 2 && path.size() > 2 && path.at(1) == QLatin1Char(':') &&
           (path.at(2) == QLatin1Char('\\') || path.at(2) == QLatin1Char('/'));
}

bool isPlainEntry(const Platform::FolderEntry& entry) {
    return (entry.attributes & Platform::attributeLink) == 0 &&
           std::none_of(entry.name.begin(), entry.name.end(), [](QChar unit) { return unit.isSurrogate(); });
}

/// What QDir lists, by asking the system for the same: QDir makes so much of each name that a large folder takes half
/// as long again. Nothing where QDir has rules of its own: odd paths, links, characters beyond the basic plane.
std::optional<QStringList> plainNames(const QString& folder, const QString& ending) {
    Platform::FolderEntry entry;
    Platform::ListingHandle listing;
    if (isPlainPath(folder)) {
        listing = Platform::firstEntry(Paths::toNative(folder), entry);
    }
    if (!listing) {
        return std::nullopt;
    }
    QStringList names;
    do {
        const bool isMeant = entry.name.endsWith(ending, Qt::CaseInsensitive);
        if (isMeant && !isPlainEntry(entry)) {
            return std::nullopt;
        }
        if (isMeant && (entry.attributes & (Platform::attributeFolder | Platform::attributeHidden)) == 0) {
            names.append(entry.name);
        }
    } while (Platform::nextEntry(listing, entry));
    return names;
}

/// Not by one of QDir's patterns, which fits no name when memory runs out while it is made.
QStringList namesOfDir(const QString& folder, const QString& ending) {
    QDir dir(Platform::pathOnPc(folder));
    dir.setFilter(QDir::Files | QDir::NoDotAndDotDot);
    QStringList names;
    for (QDirIterator file(dir); file.hasNext();) {
        file.next();
        if (file.fileName().endsWith(ending, Qt::CaseInsensitive)) {
            names.append(file.fileName());
        }
    }
    return names;
}

} // namespace

bool exists(const QString& path) {
    return told(path, QFile::exists(Platform::pathOnPc(path)));
}

bool folderExists(const QString& folder) {
    return told(Platform::writtenFolder(folder), QDir(Platform::pathOnPc(folder)).exists());
}

bool enter(QString& folder, const QString& name) {
    return Platform::changeFolder(folder, name);
}

QStringList names(const QString& folder, const QString& ending) {
    const std::optional<QStringList> plain = plainNames(folder, ending);
    const QStringList names = plain ? *plain : namesOfDir(folder, ending);
    Trace::tell([&] { return Trace::List{Paths::toNative(folder), QLatin1Char('*') + ending, names}; });
    return names;
}

QByteArray readWholeFile(const QString& path, qint64 largest) {
    QFile file(Platform::pathOnPc(path));
    const QByteArray bytes =
        file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) ? wholeOf(file, largest) : QByteArray();
    Trace::tell([&] { return Trace::Read{Paths::toNative(path), bytes.size()}; });
    return bytes;
}

QString shortcutTarget(const QString& path) {
    const QString target = QFileInfo(Platform::pathOnPc(path)).symLinkTarget();
    Trace::tell([&] { return Trace::Shortcut{Paths::toNative(path), Paths::toNative(target)}; });
    return target;
}

} // namespace Files
