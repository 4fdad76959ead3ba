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
    const QString path = event.text("path");
    const std::optional<Recordings::DrivePath> parsed = Recordings::DrivePath::parse(path);
    if (event.is("exists") && event.flag("found")) {
        addExisting(path);
    } else if (event.is("list") || event.is("walk")) {
        if (parsed && parsed->isValid) {
            addListing(event, *parsed);
        } else if (!event.texts("names").isEmpty() || !event.texts("files").isEmpty()) {
            leaveOut(path);
        }
    } else if (event.is("read") && parsed && parsed->isValid && QFileInfo(path).isFile()) {
        m_drives.addContents(*parsed, contentsOf(path));
    } else if (event.is("shortcut") && parsed && parsed->isValid) {
        m_drives.addShortcut(*parsed, event.text("target"));
    }
}

void PcRecord::addExisting(const QString& path) {
    const std::optional<Recordings::DrivePath> parsed = Recordings::DrivePath::parse(path);
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

void PcRecord::addListing(const TraceEvent& event, const Recordings::DrivePath& folder) {
    if (!QFileInfo(folder.text()).isDir()) {
        return;
    }
    m_drives.addFolder(folder);
    const QStringList folders = event.texts("folders");
    for (const QString& name : folders) {
        m_drives.addFolder(pathIn(folder, name));
        m_drives.spell(pathIn(folder, name));
    }
    const QStringList files = event.texts("files") + event.texts("names");
    for (const QString& name : files) {
        m_drives.addFile(pathIn(folder, name));
        m_drives.spell(pathIn(folder, name));
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
