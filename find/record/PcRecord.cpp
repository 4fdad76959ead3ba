#include "find/record/PcRecord.h"

#include "find/pc/AnsweringPc.h"
#include "find/record/PcFacts.h"
#include "find/record/UsedParts.h"
#include "find/terminal/Progress.h"
#include "recordings/ShellLink.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <optional>

namespace Find {

namespace {

using Kind = Recordings::File::Kind;

QByteArray contentsOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

PcRecord::PcRecord(const TraceEvents& events, Progress& progress) {
    // Also makes the drives of a recorded PC known to Qt in this program, not in the plug-in only.
    GeneralFolders general(environmentOfPc());
    // An uninstaller that is registered without its folder is looked for here.
    general.add(QDir::currentPath());
    int done = 0;
    for (const TraceEvent& event : events) {
        progress.step(++done, static_cast<int>(events.size()), QStringLiteral("what was read"));
        addToRegistry(event, m_pc.registry);
        addFact(event, m_pc);
        m_installFolders.add(event);
        addFiles(event);
    }
    m_installFolders.listExecutables(general, m_pc.drives, progress);
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
        addListing({list->path, {}, list->names, {}, {}});
    } else if (const auto* const walk = std::get_if<Trace::Walk>(&event)) {
        addListing(*walk);
    } else if (const auto* const read = std::get_if<Trace::Read>(&event)) {
        addContents(read->path);
    } else if (const auto* const shortcut = std::get_if<Trace::Shortcut>(&event)) {
        addShortcut(*shortcut);
    }
}

void PcRecord::addExisting(const QString& path) {
    const std::optional<Recordings::DrivePath> parsed = Recordings::DrivePath::parse(path);
    if (!parsed || !parsed->isValid) {
        leaveOut(path);
    } else if (!m_pc.drives.find(*parsed)) {
        m_pc.drives.make(*parsed, QFileInfo(path).isDir() ? Kind::Folder : Kind::File);
    }
}

void PcRecord::addListing(const Trace::Walk& listing) {
    const std::optional<Recordings::DrivePath> folder = Recordings::DrivePath::parse(listing.path);
    if (!folder || !folder->isValid) {
        if (!listing.files.isEmpty()) {
            leaveOut(listing.path);
        }
        return;
    }
    if (!QFileInfo(folder->text()).isDir()) {
        return;
    }
    m_pc.drives.list(*folder, listing.files, Kind::File);
    m_pc.drives.list(*folder, listing.folders, Kind::Folder);
    const auto mark = [&](const QStringList& names, bool Recordings::File::*attribute) {
        for (const QString& name : names) {
            if (Recordings::File* const file = m_pc.drives.find(pathIn(*folder, name))) {
                file->*attribute = true;
            }
        }
    };
    mark(listing.hidden, &Recordings::File::isHidden);
    mark(listing.system, &Recordings::File::isSystem);
}

void PcRecord::addContents(const QString& path) {
    const std::optional<Recordings::DrivePath> parsed = Recordings::DrivePath::parse(path);
    if (!parsed || !parsed->isValid || !QFileInfo(path).isFile()) {
        return;
    }
    const QByteArray contents = contentsOf(path);
    const std::optional<QByteArray> used = usedContents(path, contents, [](const QString& text) { return text; });
    m_pc.drives.make(*parsed, Kind::File).contents = used.value_or(QByteArray());
    if (!used) {
        leaveOut(path);
    }
}

void PcRecord::addShortcut(const Trace::Shortcut& shortcut) {
    const std::optional<Recordings::DrivePath> path = Recordings::DrivePath::parse(shortcut.path);
    if (path && path->isValid) {
        const QString target = QString(shortcut.target).replace(QLatin1Char('/'), QLatin1Char('\\'));
        m_pc.drives.make(*path, Kind::File).contents =
            target.isEmpty() ? QByteArray() : Recordings::renderShellLink(target);
    }
}

void PcRecord::leaveOut(const QString& path) {
    if (!m_leftOut.contains(path)) {
        m_leftOut.append(path);
    }
}

} // namespace Find
