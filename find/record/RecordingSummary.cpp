#include "find/record/RecordingSummary.h"

#include "find/cli/CommandLine.h"
#include "find/cli/OneLine.h"

#include <QDir>

#include <algorithm>

namespace Host {

namespace {

QString counted(int count, const char* one, const char* many) {
    return QString::number(count) + QLatin1Char(' ') + QLatin1String(count == 1 ? one : many);
}

QString describeDrives(const PcRecord& record) {
    using Kind = DriveRecord::Kind;
    const DriveRecord& drives = record.drives();
    const int read = drives.count(Kind::ReadFile);
    const int shortcuts = drives.count(Kind::Shortcut);
    const QStringList parts = {
        counted(drives.count(Kind::Folder), "folder", "folders"),
        counted(drives.count(Kind::File) + read + shortcuts, "file name", "file names") +
            QStringLiteral(" (%1)").arg(counted(record.executableCount(), "executable", "executables")),
        counted(shortcuts, "shortcut", "shortcuts"),
        QLatin1String("the contents of ") + counted(read, "file", "files"),
    };
    return parts.join(QLatin1String(", "));
}

QString describeNames(const std::vector<PrivateName>& names, bool areKept) {
    if (areKept) {
        return QStringLiteral("kept");
    }
    QStringList replaced;
    for (const PrivateName& name : names) {
        const QString where = name.isEverywhere ? QString() : QStringLiteral(" (as a user's folder only)");
        replaced.append(QStringLiteral("\"%1\" is now \"%2\"").arg(name.name, name.neutral) + where);
    }
    return replaced.isEmpty() ? QStringLiteral("none known, so none replaced") : replaced.join(QLatin1String(", "));
}

QString line(const char* title, const QString& text) {
    return QString::asprintf("  %-16s", title) + oneLine(text) + QLatin1Char('\n');
}

/// How the folder is called where it is replayed. Only its name goes with it when it leaves Windows.
QString folderElsewhere(const QString& folder) {
    return QDir::separator() == QLatin1Char('\\') ? QDir(folder).dirName() : folder;
}

/// As a shell wants it: within quotes when it has anything but letters, digits and a few signs.
QString shellWord(const QString& text) {
    const QString harmless = QStringLiteral("/._-+");
    const bool isPlain = std::all_of(text.begin(), text.end(), [&harmless](QChar character) {
        return character.isLetterOrNumber() || harmless.contains(character);
    });
    return isPlain ? text
                   : QLatin1Char('\'') + QString(text).replace(QLatin1Char('\''), QLatin1String("'\\''")) +
                         QLatin1Char('\'');
}

} // namespace

QString summarize(const PcRecord& record, const std::vector<PrivateName>& names, const Options& options) {
    const RegistryRecord& registry = record.registry();
    return QStringLiteral("Recorded into %1:\n").arg(oneLine(options.folder)) +
           line("registry", counted(static_cast<int>(registry.keys().size()), "key", "keys") + QLatin1String(", ") +
                                counted(registry.valueCount(), "value", "values")) +
           line("drives", describeDrives(record)) +
           line("app packages", QString::number(record.facts().packageCount())) +
           line("user's choices", QString::number(record.facts().userLocationCount())) +
           line("names", describeNames(names, options.keepNames)) +
           QStringLiteral("Replay it on Linux with: ./run --pc %1\n")
               .arg(shellWord(oneLine(folderElsewhere(options.folder))));
}

QStringList describeLosses(const QStringList& leftOut, const std::vector<PrivateName>& names) {
    QStringList lines;
    for (const QString& path : leftOut) {
        lines.append(QStringLiteral("not recorded: %1").arg(path));
    }
    for (const PrivateName& name : names) {
        if (!name.isEverywhere) {
            lines.append(
                QStringLiteral("\"%1\" is too short a name, or a word that finders look for: it is \"%2\" as a "
                               "folder beside the user's profile only")
                    .arg(name.name, name.neutral));
        }
    }
    return lines;
}

} // namespace Host
