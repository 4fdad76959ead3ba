#include "recordings/PrivateNames.h"

#include "recordings/DrivePath.h"
#include "recordings/RegValues.h"
#include "recordings/ShellLink.h"
#include "recordings/WindowsNames.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>
#include <optional>

namespace Recordings {

namespace {

constexpr int shortestName = 3;
constexpr int mostNumbers = 100;
constexpr const char* usualProfilesFolder = "Users";

/// Folders beside the users' profiles that are Windows' own.
constexpr const char* sharedProfiles[] = {"Public", "Default", "Default User", "All Users"};

QString lastNameOf(const QString& path) {
    const std::optional<DrivePath> parsed = DrivePath::parse(path);
    return parsed ? parsed->names.value(parsed->names.size() - 1) : QString();
}

bool isWordOfPlaces(const QString& name, const QStringList& places) {
    const QString shortForm = shortFormOf(name);
    return std::any_of(places.begin(), places.end(), [&](const QString& place) {
        const bool sameShortForm = !shortForm.isEmpty() && shortFormOf(place) == shortForm;
        return containsWord(place, name) || sameShortForm;
    });
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
        const QString before = foldName(longForms.text(path));
        const QString after = foldName(neutral.text(path));
        const auto known = pathsByNeutral.constFind(after);
        if (known == pathsByNeutral.constEnd()) {
            pathsByNeutral.insert(after, before);
        } else if (*known != before) {
            return true;
        }
    }
    return false;
}

/// The folders beside the user's profile that the texts name, but for Windows' own and those with neutral names.
QStringList otherUsers(const RecordedTexts& texts, const QString& profilesFolder) {
    const QRegularExpression profile(
        QStringLiteral("[\\\\/]%1[\\\\/]+([^\\\\/:*?\"<>|]+)").arg(QRegularExpression::escape(profilesFolder)),
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression neutral(QStringLiteral("^user(-[0-9]+)?$"),
                                            QRegularExpression::CaseInsensitiveOption);
    QStringList users;
    for (const QString& text : texts.paths + texts.others) {
        for (auto matches = profile.globalMatch(text); matches.hasNext();) {
            const QString name = matches.next().captured(1);
            const bool isShared =
                std::any_of(std::begin(sharedProfiles), std::end(sharedProfiles), [&](const char* known) {
                    return name.compare(QLatin1String(known), Qt::CaseInsensitive) == 0;
                });
            if (!isShared && !neutral.match(name).hasMatch() && !users.contains(name, Qt::CaseInsensitive)) {
                users.append(name);
            }
        }
    }
    return users;
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

QString profileAmong(const QMap<int, QString>& shellFolders) {
    for (const QString& folder : shellFolders) {
        std::optional<DrivePath> path = DrivePath::parse(folder);
        const QStringList names = path ? path->names : QStringList();
        int size = static_cast<int>(
            names.indexOf(QRegularExpression(QStringLiteral("appdata"), QRegularExpression::CaseInsensitiveOption)));
        if (size < 0 && names.value(0).compare(QLatin1String(usualProfilesFolder), Qt::CaseInsensitive) == 0) {
            size = 2;
        }
        if (size >= 2) {
            path->names = names.mid(0, size);
            return path->text();
        }
    }
    return {};
}

RecordedTexts textsOf(const Pc& pc) {
    RecordedTexts texts;
    pc.drives.visit([&texts](const DrivePath& path, const File& file) {
        texts.paths.append(path.text());
        if (file.contents.size() > 0) {
            const QByteArray contents = file.contents.read().value_or(QByteArray());
            const std::optional<ShellLink> link = parseShellLink(contents);
            texts.others.append(link ? link->localPath : QString::fromUtf8(contents));
        }
    });
    pc.registry.visit([&texts](RegKey::Root root, const QStringList& path, const RegistryNode& key) {
        texts.paths.append((QStringList{rootName(root)} + path).join(QLatin1Char('\\')));
        for (const auto& [folded, value] : key.values()) {
            texts.others.append(textOf(value.type, value.data).value_or(QString()));
        }
    });
    texts.others += pc.shellFolders.values() + pc.environment.toStringList() + pc.userLocations.values();
    texts.others.append(pc.hostExecutable);
    return texts;
}

std::vector<PrivateName> choosePrivateNames(const NameSources& sources, const QStringList& places,
                                            const RecordedTexts& texts) {
    const QString profilesFolder = profilesFolderName(sources);
    std::vector<PrivateName> chosen;
    const auto choose = [&](const PrivateName& name, int number) {
        const QString base = name.neutral;
        chosen.push_back(name);
        const auto setNumber = [&] { chosen.back().neutral = base + QLatin1Char('-') + QString::number(number); };
        if (number > 1) {
            setNumber();
        }
        while (number < mostNumbers && mergesPaths(chosen, profilesFolder, texts.paths)) {
            ++number;
            setNumber();
        }
        return number;
    };
    for (const PrivateName& name : privateNames(sources, places)) {
        choose(name, 1);
    }
    const NeutralNames known(chosen, profilesFolder);
    int number = 1;
    for (const QString& user : otherUsers(texts, profilesFolder)) {
        const QString folder = profilesFolder + QLatin1Char('\\') + user;
        const QString path = QLatin1String("C:\\") + folder;
        if (known.text(path) == path) {
            number = choose({user, QStringLiteral("user"), false}, number + 1);
        }
    }
    return chosen;
}

QString profilesFolderName(const NameSources& sources) {
    const std::optional<DrivePath> profile = DrivePath::parse(sources.profile);
    return profile && profile->names.size() > 1 ? profile->names.at(profile->names.size() - 2)
                                                : QString::fromLatin1(usualProfilesFolder);
}

} // namespace Recordings
