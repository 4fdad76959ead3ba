#include "find/record/RecordingSummary.h"

#include "find/explain/Words.h"
#include "find/record/InstallFolders.h"
#include "find/terminal/OneLine.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace Find {

namespace {

QString describeDrives(const Recordings::Drives& drives) {
    int folders = 0;
    int files = 0;
    int executables = 0;
    int shortcuts = 0;
    int contents = 0;
    drives.visit([&](const Recordings::DrivePath&, const Recordings::File& file) {
        const bool isShortcut = file.name.endsWith(QLatin1String(".lnk"));
        (file.isFolder() ? folders : files) += 1;
        executables += !file.isFolder() && isExecutableName(file.name) ? 1 : 0;
        shortcuts += !file.isFolder() && isShortcut ? 1 : 0;
        contents += file.contents.size() > 0 && !isShortcut ? 1 : 0;
    });
    const QStringList parts = {
        counted(folders, "folder", "folders"),
        counted(files, "file name", "file names") +
            QStringLiteral(" (%1)").arg(counted(executables, "executable", "executables")),
        counted(shortcuts, "shortcut", "shortcuts"),
        QLatin1String("the contents of ") + counted(contents, "file", "files"),
    };
    return parts.join(QLatin1String(", "));
}

QString describeRegistry(const Recordings::Registry& registry) {
    int keys = 0;
    int values = 0;
    registry.visit([&](Recordings::RegKey::Root, const QStringList&, const Recordings::RegistryNode& key) {
        keys += key.values().empty() && !key.children().empty() ? 0 : 1;
        values += static_cast<int>(key.values().size());
    });
    return counted(keys, "key", "keys") + QLatin1String(", ") + counted(values, "value", "values");
}

QString describeNames(const std::vector<Recordings::PrivateName>& names, bool areKept) {
    if (areKept) {
        return QStringLiteral("kept");
    }
    QStringList replaced;
    for (const Recordings::PrivateName& name : names) {
        const QString where = name.isEverywhere ? QString() : QStringLiteral(" (as a user's folder only)");
        replaced.append(QStringLiteral("\"%1\" is now \"%2\"").arg(name.name, name.neutral) + where);
    }
    return replaced.isEmpty() ? QStringLiteral("none known, so none replaced") : replaced.join(QLatin1String(", "));
}

QString line(const QString& title, const QString& text) {
    constexpr int widthOfTitle = 16;
    return QLatin1String("  ") + title.leftJustified(widthOfTitle) + oneLine(text) + QLatin1Char('\n');
}

/// How the file is called where it is replayed. Only its name goes with it when it leaves Windows.
QString fileElsewhere(const QString& file) {
    return QDir::separator() == QLatin1Char('\\') ? QFileInfo(file).fileName() : file;
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

std::vector<RecordedAmount> amountsOf(const Recordings::Pc& pc) {
    const int packages = pc.packages ? static_cast<int>(pc.packages->size()) : 0;
    return {
        {QStringLiteral("registry"), describeRegistry(pc.registry)},
        {QStringLiteral("drives"), describeDrives(pc.drives)},
        {QStringLiteral("app packages"), QString::number(packages)},
        {QStringLiteral("user's choices"), QString::number(pc.userLocations.size())},
    };
}

QString fileForReplay(const QString& file) {
    return shellWord(oneLine(fileElsewhere(file)));
}

QString summarize(const Recordings::Pc& pc, const std::vector<Recordings::PrivateName>& names, const QString& file,
                  bool areNamesKept) {
    QString text = QStringLiteral("Recorded into %1:\n").arg(oneLine(file));
    for (const RecordedAmount& amount : amountsOf(pc)) {
        text += line(amount.title, amount.text);
    }
    return text + line(QStringLiteral("names"), describeNames(names, areNamesKept)) +
           QStringLiteral("Replay it on Linux with: luruludri-find --pc %1\n").arg(fileForReplay(file));
}

QStringList describeLosses(const QStringList& leftOut, const std::vector<Recordings::PrivateName>& names) {
    QStringList lines;
    for (const QString& path : leftOut) {
        lines.append(QStringLiteral("not recorded: %1").arg(path));
    }
    for (const Recordings::PrivateName& name : names) {
        if (!name.isEverywhere) {
            lines.append(
                QStringLiteral("\"%1\" is too short a name, or a word that finders look for: it is \"%2\" as a "
                               "folder beside the user's profile only")
                    .arg(name.name, name.neutral));
        }
    }
    return lines;
}

} // namespace Find
