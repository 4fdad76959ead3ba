#include "platform/recorded/Drives.h"

#include "recordings/WindowsNames.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace Recorded {

namespace {

using HostFiles::Entry;

QByteArray childPath(const QByteArray& folder, const QByteArray& name) {
    return folder + '/' + name;
}

std::vector<Entry> entriesOf(const QByteArray& folder) {
    return HostFiles::list(folder).value_or(std::vector<Entry>());
}

std::vector<std::pair<QString, Entry>> sortedEntries(const QByteArray& folder) {
    std::vector<std::pair<QString, Entry>> sorted; // by folded name
    for (Entry& entry : entriesOf(folder)) {
        QString folded = Recordings::foldName(entry.name);
        sorted.emplace_back(std::move(folded), std::move(entry));
    }
    std::sort(sorted.begin(), sorted.end(), [](const auto& a, const auto& b) {
        return std::tie(a.first, a.second.name) < std::tie(b.first, b.second.name);
    });
    // Of two names that differ only in case, Windows could have only one.
    const auto end =
        std::unique(sorted.begin(), sorted.end(), [](const auto& a, const auto& b) { return a.first == b.first; });
    sorted.erase(end, sorted.end());
    return sorted;
}

// The entry of `folder` that Windows would find under `name`; empty when there is none.
QByteArray nameIgnoringCase(const QByteArray& folder, const QString& name) {
    const QString folded = Recordings::foldName(name);
    QString best;
    for (const Entry& entry : entriesOf(folder)) {
        if (Recordings::foldName(entry.name) == folded && (best.isEmpty() || entry.name < best)) {
            best = entry.name;
        }
    }
    return best.toUtf8();
}

std::optional<Drives::File> findIgnoringCase(const QByteArray& folder, const QStringList& names) {
    Drives::File file{folder, {}};
    for (const QString& name : names) {
        QByteArray path = childPath(file.realPath, name.toUtf8());
        auto info = HostFiles::status(path);
        if (!info) {
            path = childPath(file.realPath, nameIgnoringCase(file.realPath, name));
            info = path.endsWith('/') ? std::nullopt : HostFiles::status(path);
        }
        if (!info) {
            return std::nullopt;
        }
        file = {path, *info};
    }
    return file;
}

bool leadsElsewhere(const QByteArray& link, const std::vector<struct stat>& way) {
    const auto target = HostFiles::status(link);
    return target && std::none_of(way.begin(), way.end(), [&target](const struct stat& folder) {
               return folder.st_dev == target->st_dev && folder.st_ino == target->st_ino;
           });
}

QSet<QString> foldedPaths(const QStringList& paths) {
    QSet<QString> folded;
    for (const QString& path : paths) {
        if (const std::optional<Recordings::DrivePath> parsed = Recordings::DrivePath::parse(path)) {
            folded.insert(Recordings::foldName(parsed->text()));
        }
    }
    return folded;
}

} // namespace

Drives::Drives(QByteArray folder, const QStringList& hidden, const QStringList& system)
    : m_folder(std::move(folder))
    , m_hidden(foldedPaths(hidden))
    , m_system(foldedPaths(system)) {}

std::optional<Drives::File> Drives::find(const Recordings::DrivePath& path) const {
    if (m_folder.isEmpty() || !path.isValid) {
        return std::nullopt;
    }
    const QStringList names = QStringList{path.letter.toUpper()} + path.names;
    QByteArray exact = m_folder;
    for (const QString& name : names) {
        const QByteArray bytes = HostFiles::encodedName(name);
        if (bytes.isEmpty()) {
            return std::nullopt;
        }
        exact = childPath(exact, bytes);
    }
    const auto info = HostFiles::status(exact);
    const std::optional<File> file = info ? File{exact, *info} : findIgnoringCase(m_folder, names);
    return file && path.isFolderOnly && !file->isFolder() ? std::nullopt : file;
}

std::vector<QString> Drives::list(const Recordings::DrivePath& path) const {
    const std::optional<File> folder = find(path);
    if (!folder) {
        return {};
    }
    std::vector<struct stat> way;
    std::vector<QString> names;
    for (const auto& [folded, entry] : sortedEntries(folder->realPath)) {
        if (!Recordings::DrivePath::canName(entry.name)) {
            continue;
        }
        if (entry.isLink && way.empty()) {
            way = foldersOnTheWay(path);
        }
        if (!entry.isLink || leadsElsewhere(childPath(folder->realPath, entry.name.toUtf8()), way)) {
            names.push_back(entry.name);
        }
    }
    return names;
}

std::vector<struct stat> Drives::foldersOnTheWay(Recordings::DrivePath path) const {
    std::vector<struct stat> way;
    while (true) {
        if (const std::optional<File> folder = find(path)) {
            way.push_back(folder->info);
        }
        if (path.isRoot()) {
            return way;
        }
        path.names.removeLast();
    }
}

bool Drives::isHidden(const Recordings::DrivePath& path) const {
    return m_hidden.contains(Recordings::foldName(path.text()));
}

bool Drives::isSystem(const Recordings::DrivePath& path) const {
    return m_system.contains(Recordings::foldName(path.text()));
}

} // namespace Recorded
