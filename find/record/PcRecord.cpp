#include "find/record/PcRecord.h"

#include "find/cli/Progress.h"
#include "find/record/PcFacts.h"
#include "find/record/RegistryRecord.h"
#include "find/record/UsedParts.h"
#include "platform/Process.h"
#include "recordings/ShellLink.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <optional>

namespace Host {

namespace {

using Kind = Recordings::File::Kind;

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
        addContents(path, *parsed);
    } else if (event.is("shortcut") && parsed && parsed->isValid) {
        const QString target = event.text("target").replace(QLatin1Char('/'), QLatin1Char('\\'));
        m_pc.drives.make(*parsed, Kind::File).contents =
            target.isEmpty() ? QByteArray() : Recordings::renderShellLink(target);
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

void PcRecord::addListing(const TraceEvent& event, const Recordings::DrivePath& folder) {
    if (!QFileInfo(folder.text()).isDir()) {
        return;
    }
    m_pc.drives.list(folder, event.texts("files") + event.texts("names"), Kind::File);
    m_pc.drives.list(folder, event.texts("folders"), Kind::Folder);
    const auto mark = [&](const char* field, bool Recordings::File::*attribute) {
        const QStringList names = event.texts(field);
        for (const QString& name : names) {
            if (Recordings::File* const file = m_pc.drives.find(pathIn(folder, name))) {
                file->*attribute = true;
            }
        }
    };
    mark("hidden", &Recordings::File::isHidden);
    mark("system", &Recordings::File::isSystem);
}

void PcRecord::addContents(const QString& path, const Recordings::DrivePath& parsed) {
    const QByteArray contents = contentsOf(path);
    const std::optional<QByteArray> used = usedContents(path, contents, [](const QString& text) { return text; });
    m_pc.drives.make(parsed, Kind::File).contents = used.value_or(QByteArray());
    if (!used) {
        leaveOut(path);
    }
}

void PcRecord::leaveOut(const QString& path) {
    if (!m_leftOut.contains(path)) {
        m_leftOut.append(path);
    }
}

} // namespace Host
