#include "find/record/RecordingWriter.h"

#include "find/cli/Progress.h"
#include "find/record/OutputFolder.h"
#include "find/record/RegFileWriter.h"
#include "recordings/ShellLink.h"

namespace Host {

namespace {

QByteArray contentsOf(const DriveRecord::Entry& entry, const NeutralNames& names) {
    if (entry.kind == DriveRecord::Kind::ReadFile) {
        return names.contents(entry.contents);
    }
    if (entry.kind != DriveRecord::Kind::Shortcut || entry.target.isEmpty()) {
        return {};
    }
    return Recordings::renderShellLink(names.text(entry.target).replace(QLatin1Char('/'), QLatin1Char('\\')));
}

/// "C:/Users/anna" as the recording has it: "drives/C/Users/user".
QString nameInRecording(const QString& path, const NeutralNames& names) {
    return QLatin1String("drives/") + names.text(path).remove(1, 1);
}

bool writeDrives(const DriveRecord& drives, const NeutralNames& names, const OutputFolder& folder, Progress& progress,
                 QString& fault) {
    const QStringList paths = drives.paths();
    int index = 0;
    for (const auto& [folded, entry] : drives.entries()) {
        const QString name = nameInRecording(paths.at(index++), names);
        progress.step(index, paths.size(), name);
        const bool isWritten = entry.kind == DriveRecord::Kind::Folder ? folder.makeFolder(name)
                                                                       : folder.write(name, contentsOf(entry, names));
        if (!isWritten) {
            fault = name;
            return false;
        }
    }
    return true;
}

} // namespace

bool writeRecording(const PcRecord& record, const NeutralNames& names, const OutputFolder& folder, Progress& progress,
                    QString& fault, QStringList& leftOut) {
    const QString registry = QStringLiteral("registry/recorded.reg");
    if (!folder.write(registry, renderRegFile(record.registry(), names, leftOut))) {
        fault = registry;
        return false;
    }
    const QString description = QStringLiteral("pc.json");
    if (!folder.write(description, record.facts().render(names))) {
        fault = description;
        return false;
    }
    return writeDrives(record.drives(), names, folder, progress, fault);
}

} // namespace Host
