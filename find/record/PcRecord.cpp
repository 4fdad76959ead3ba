#include "find/record/PcRecord.h"

#include "find/cli/Progress.h"
#include "platform/Process.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <optional>

namespace Host {

namespace {

QByteArray contentsOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

PcRecord::PcRecord(const TraceEvents& events, Progress& progress) {
    // Also makes the drives of a recorded PC known to Qt in this program, not in the plug-in only.
    GeneralFolders general(Platform::systemEnvironment());
    // An uninstaller that is registered without its folder is looked for here.
    general.add(QDir::currentPath());
    int done = 0;
    for (const TraceEvent& event : events) {
        progress.step(++done, static_cast<int>(events.size()), QStringLiteral("what was read"));
        m_registry.add(event);
        m_facts.add(event);
        m_installFolders.add(event);
        addFiles(event);
    }
    m_installFolders.listExecutables(general, m_drives, progress);
    for (const QString& folder : m_installFolders.networkFolders()) {
        if (QFileInfo(folder).isDir()) {
            leaveOut(folder);
        }
    }
}

void PcRecord::addFiles(const TraceEvent& event) {
    if (const auto* const exists = std::get_if<Trace::Exists>(&event)) {
        if (exists->found) {
            addExisting(exists->path);
        }
    } else if (const auto* const list = std::get_if<Trace::List>(&event)) {
        addListing(list->path, {}, list->names);
    } else if (const auto* const walk = std::get_if<Trace::Walk>(&event)) {
        addListing(walk->path, walk->folders, walk->files);
    } else if (const auto* const read = std::get_if<Trace::Read>(&event)) {
        const std::optional<Windows::DrivePath> path = Windows::DrivePath::parse(read->path);
        if (path && path->isValid && QFileInfo(read->path).isFile()) {
            m_drives.addContents(*path, contentsOf(read->path));
        }
    } else if (const auto* const shortcut = std::get_if<Trace::Shortcut>(&event)) {
        const std::optional<Windows::DrivePath> path = Windows::DrivePath::parse(shortcut->path);
        if (path && path->isValid) {
            m_drives.addShortcut(*path, shortcut->target);
        }
    }
}

void PcRecord::addExisting(const QString& path) {
    const std::optional<Windows::DrivePath> parsed = Windows::DrivePath::parse(path);
    if (!parsed || !parsed->isValid) {
        leaveOut(path);
    } else if (m_drives.entries().count(foldedPath(*parsed)) == 0) {
        if (QFileInfo(path).isDir()) {
            m_drives.addFolder(*parsed);
        } else {
            m_drives.addFile(*parsed);
        }
    }
}

void PcRecord::addListing(const QString& path, const QStringList& folders, const QStringList& files) {
    const std::optional<Windows::DrivePath> folder = Windows::DrivePath::parse(path);
    if (!folder || !folder->isValid) {
        if (!files.isEmpty()) {
            leaveOut(path);
        }
        return;
    }
    if (!QFileInfo(folder->text()).isDir()) {
        return;
    }
    m_drives.addFolder(*folder);
    for (const QString& name : folders) {
        m_drives.addFolder(pathIn(*folder, name));
        m_drives.spell(pathIn(*folder, name));
    }
    for (const QString& name : files) {
        m_drives.addFile(pathIn(*folder, name));
        m_drives.spell(pathIn(*folder, name));
    }
}

void PcRecord::leaveOut(const QString& path) {
    if (!m_leftOut.contains(path)) {
        m_leftOut.append(path);
    }
}

int PcRecord::executableCount() const {
    const auto isExecutable = [](const auto& entry) {
        return entry.second.kind == DriveRecord::Kind::File && isExecutableName(entry.second.name);
    };
    const auto& entries = m_drives.entries();
    return static_cast<int>(std::count_if(entries.begin(), entries.end(), isExecutable));
}

} // namespace Host
