#include "find/record/DriveRecord.h"

#include "recordings/WindowsNames.h"

#include <algorithm>

namespace Host {

namespace {

constexpr QLatin1Char slash('/');

/// The way to a path, from the drive's root ("C:") on; the path itself is the last.
QStringList wayTo(const Recordings::DrivePath& path) {
    return QStringList{QString(path.letter.toUpper()) + QLatin1Char(':')} + path.names;
}

} // namespace

QString foldedPath(const Recordings::DrivePath& path) {
    return Recordings::foldName(wayTo(path).join(slash));
}

Recordings::DrivePath pathIn(const Recordings::DrivePath& folder, const QString& name) {
    Recordings::DrivePath path = folder;
    path.names.append(name);
    path.isFolderOnly = false;
    return path;
}

void DriveRecord::addFolder(const Recordings::DrivePath& path) {
    make(path, Kind::Folder);
}

void DriveRecord::addFile(const Recordings::DrivePath& path) {
    make(path, Kind::File);
}

void DriveRecord::addContents(const Recordings::DrivePath& path, const QByteArray& contents) {
    make(path, Kind::ReadFile).contents = contents;
}

void DriveRecord::addShortcut(const Recordings::DrivePath& path, const QString& target) {
    make(path, Kind::Shortcut).target = target;
}

void DriveRecord::spell(const Recordings::DrivePath& path) {
    const auto entry = m_entries.find(foldedPath(path));
    if (entry != m_entries.end() && !path.isRoot()) {
        entry->second.name = path.names.last();
    }
}

DriveRecord::Entry& DriveRecord::make(const Recordings::DrivePath& path, Kind kind) {
    const QStringList way = wayTo(path);
    QString folded;
    for (int i = 0; i + 1 < way.size(); ++i) {
        folded += Recordings::foldName(way.at(i));
        Entry& folder = m_entries[folded];
        folder.kind = Kind::Folder;
        if (folder.name.isEmpty()) {
            folder.name = i == 0 ? way.at(0).left(1) : way.at(i);
        }
        folded += slash;
    }
    const auto [place, isNew] = m_entries.try_emplace(folded + Recordings::foldName(way.last()));
    Entry& entry = place->second;
    if (isNew) {
        entry.name = path.isRoot() ? way.at(0).left(1) : way.last();
        entry.kind = kind;
    } else if (entry.kind != Kind::Folder) {
        // What a file is known to hold is not forgotten when it is looked for once more.
        entry.kind = std::max(entry.kind, kind);
    }
    return entry;
}

QStringList DriveRecord::paths() const {
    QStringList paths;
    std::map<QString, QString> spelled; // by folded path
    for (const auto& [folded, entry] : m_entries) {
        const auto parent = spelled.find(folded.left(folded.lastIndexOf(slash)));
        const QString path =
            parent == spelled.end() ? entry.name + QLatin1Char(':') : parent->second + slash + entry.name;
        spelled.emplace(folded, path);
        paths.append(path);
    }
    return paths;
}

int DriveRecord::count(Kind kind) const {
    return static_cast<int>(std::count_if(m_entries.begin(), m_entries.end(),
                                          [kind](const auto& entry) { return entry.second.kind == kind; }));
}

} // namespace Host
