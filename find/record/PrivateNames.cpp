#include "find/record/PrivateNames.h"

#include "find/cli/Environment.h"
#include "platform/Process.h"
#include "recordings/DrivePath.h"
#include "recordings/WindowsNames.h"

#include <QHash>
#include <QProcessEnvironment>
#include <QSysInfo>

#include <algorithm>
#include <iterator>
#include <optional>

namespace Host {

namespace {

constexpr int shortestName = 3;
constexpr int mostNumbers = 100;

/// Words of the folders, files and texts that finders ask for. What they ask of the registry says the trace.
constexpr const char* placeWords[] = {"Program Files",
                                      "Program",
                                      "Files",
                                      "ProgramData",
                                      "Windows",
                                      "System32",
                                      "SysWOW64",
                                      "Users",
                                      "Public",
                                      "Default",
                                      "AppData",
                                      "Local",
                                      "LocalLow",
                                      "Roaming",
                                      "Documents",
                                      "Start Menu",
                                      "Programs",
                                      "Common Files",
                                      "Games",
                                      "Steam",
                                      "steamapps",
                                      "common",
                                      "appmanifest",
                                      "acf",
                                      "libraryfolders",
                                      "vdf",
                                      "libraries",
                                      "apps",
                                      "path",
                                      "label",
                                      "config",
                                      "Software",
                                      "Manifests",
                                      "json",
                                      "mini",
                                      "Support",
                                      "oculus-runtime",
                                      "LibOVRRT64_1",
                                      "Oculus",
                                      "Epic",
                                      "Epic Games",
                                      "EpicGamesLauncher",
                                      "Launcher",
                                      "Data",
                                      "item",
                                      "bin",
                                      "win32",
                                      "win64",
                                      "vrmonitor",
                                      "vrserver",
                                      "uninstall",
                                      "unins000",
                                      "exe",
                                      "com",
                                      "bat",
                                      "cmd",
                                      "dll",
                                      "lnk",
                                      "Volume",
                                      "AppName",
                                      "DisplayName",
                                      "InstallLocation",
                                      "LaunchExecutable",
                                      "LaunchCommand",
                                      "CatalogNamespace",
                                      "CatalogItemId",
                                      "true",
                                      "false",
                                      "null"};

QString lastNameOf(const QString& path) {
    const std::optional<Recordings::DrivePath> parsed = Recordings::DrivePath::parse(path);
    return parsed ? parsed->names.value(parsed->names.size() - 1) : QString();
}

bool isWordOfPlaces(const QString& name, const QStringList& places) {
    const QString shortForm = shortFormOf(name);
    const auto clashes = [&](const QString& place) {
        const bool sameShortForm = !shortForm.isEmpty() && shortFormOf(place) == shortForm;
        return containsWord(place, name) || sameShortForm;
    };
    const bool isFixed = std::any_of(std::begin(placeWords), std::end(placeWords),
                                     [&](const char* word) { return clashes(QString::fromLatin1(word)); });
    return isFixed || std::any_of(places.begin(), places.end(), clashes);
}

/// Whether two paths that differ would be one with the neutral names. (A name and its short form never differ.)
bool mergesPaths(const std::vector<PrivateName>& names, const QString& profilesFolder, const QStringList& paths) {
    std::vector<PrivateName> kept = names;
    for (PrivateName& name : kept) {
        name.neutral = name.name;
    }
    const NeutralNames neutral(names, profilesFolder);
    const NeutralNames longForms(kept, profilesFolder);
    QHash<QString, QString> pathsByNeutral;
    for (const QString& path : paths) {
        const QString before = Recordings::foldName(longForms.text(path));
        const QString after = Recordings::foldName(neutral.text(path));
        const auto known = pathsByNeutral.constFind(after);
        if (known == pathsByNeutral.constEnd()) {
            pathsByNeutral.insert(after, before);
        } else if (*known != before) {
            return true;
        }
    }
    return false;
}

/// The names in the order in which they are given neutral ones, each once.
std::vector<PrivateName> privateNames(const NameSources& sources, const QStringList& places) {
    std::vector<PrivateName> names;
    const auto add = [&](const QString& name, const char* neutral) {
        const QString trimmed = name.trimmed();
        const QString base = QString::fromLatin1(neutral);
        const bool isKnown = std::any_of(names.begin(), names.end(), [&](const PrivateName& known) {
            return known.name.compare(trimmed, Qt::CaseInsensitive) == 0;
        });
        if (!trimmed.isEmpty() && !isKnown && trimmed.compare(base, Qt::CaseInsensitive) != 0) {
            names.push_back({trimmed, base, trimmed.size() >= shortestName && !isWordOfPlaces(trimmed, places)});
        }
    };
    add(lastNameOf(sources.profile), "user");
    add(sources.account, "user");
    for (const QString& machine : sources.machine) {
        add(machine, "pc");
    }
    return names;
}

} // namespace

NameSources nameSources() {
    const QProcessEnvironment environment = Platform::systemEnvironment();
    NameSources sources = {environment.value(QStringLiteral("USERNAME")),
                           environment.value(QStringLiteral("USERPROFILE")),
                           {environment.value(QStringLiteral("COMPUTERNAME"))}};
    if (isPcItself()) {
        sources.machine.append(QSysInfo::machineHostName());
    }
    return sources;
}

std::vector<PrivateName> choosePrivateNames(const NameSources& sources, const RecordedTexts& texts) {
    const QString profilesFolder = profilesFolderName(sources);
    std::vector<PrivateName> chosen;
    for (PrivateName& name : privateNames(sources, texts.places)) {
        const QString base = name.neutral;
        chosen.push_back(name);
        for (int number = 2; number <= mostNumbers && mergesPaths(chosen, profilesFolder, texts.paths); ++number) {
            chosen.back().neutral = base + QLatin1Char('-') + QString::number(number);
        }
    }
    return chosen;
}

QString profilesFolderName(const NameSources& sources) {
    const std::optional<Recordings::DrivePath> profile = Recordings::DrivePath::parse(sources.profile);
    return profile && profile->names.size() > 1 ? profile->names.at(profile->names.size() - 2)
                                                : QStringLiteral("Users");
}

} // namespace Host
