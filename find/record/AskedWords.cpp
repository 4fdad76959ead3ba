#include "find/record/AskedWords.h"

#include "find/catalogue/FinderTypes.h"
#include "find/record/UsedParts.h"
#include "recordings/RegValues.h"
#include "recordings/ShellLink.h"
#include "recordings/WindowsNames.h"

#include <QSet>

#include <algorithm>

namespace Find {

namespace {

using Recordings::foldName;

/// The paths that finders can have read on the PC, and the folders of the programs among them.
class KnownPaths {
public:
    explicit KnownPaths(const Recordings::Pc& pc);

    void add(const QString& text);

    void add(const Recordings::DrivePath& path) { m_paths.insert(foldedPath(path)); }

    /// The names of `path` that lead on from where it was known.
    QStringList unknownNames(Recordings::DrivePath path) const;

private:
    void addValues(const Recordings::Registry& registry);
    void addContents(const Recordings::Drives& drives);

    const QMap<QChar, QString>& m_volumes;
    QSet<QString> m_paths; ///< folded
};

KnownPaths::KnownPaths(const Recordings::Pc& pc)
    : m_volumes(pc.volumes) {
    for (const QString& folder : pc.shellFolders) {
        add(folder);
    }
    const QStringList variables = pc.environment.keys();
    for (const QString& name : variables) {
        add(pc.environment.value(name));
    }
    for (const QString& folder : pc.userLocations) {
        add(folder);
    }
    addValues(pc.registry);
    addContents(pc.drives);
}

void KnownPaths::addValues(const Recordings::Registry& registry) {
    registry.visit([this](Recordings::RegKey::Root, const QStringList&, const Recordings::RegistryNode& key) {
        for (const auto& [folded, value] : key.values()) {
            add(Recordings::textOf(value.type, value.data).value_or(QString()));
        }
    });
}

void KnownPaths::addContents(const Recordings::Drives& drives) {
    drives.visit([this](const Recordings::DrivePath&, const Recordings::File& file) {
        const QByteArray contents = file.contents.read().value_or(QByteArray());
        if (const std::optional<Recordings::ShellLink> link = Recordings::parseShellLink(contents)) {
            add(link->localPath);
        }
        usedContents(file.name, contents, [this](const QString& text) {
            add(text.trimmed());
            return text;
        });
    });
}

/// A path, also one in quotes at the text's beginning and one that names a volume.
void KnownPaths::add(const QString& text) {
    QString path = text.startsWith(QLatin1Char('"')) ? text.mid(1) : text;
    path = path.left(path.indexOf(QLatin1Char('"')));
    for (auto volume = m_volumes.begin(); volume != m_volumes.end(); ++volume) {
        if (path.startsWith(volume.value(), Qt::CaseInsensitive)) {
            path = QString(volume.key()) + QLatin1String(":\\") + path.mid(volume->size());
        }
    }
    std::optional<Recordings::DrivePath> parsed = Recordings::DrivePath::parse(path);
    if (!parsed) {
        return;
    }
    add(*parsed);
    if (!parsed->isRoot() && parsed->names.last().contains(QLatin1Char('.'))) { // a program as a rule
        parsed->names.removeLast();
        add(*parsed);
    }
}

QStringList KnownPaths::unknownNames(Recordings::DrivePath path) const {
    QStringList names;
    while (!path.isRoot() && !m_paths.contains(foldedPath(path))) {
        names.prepend(path.names.takeLast());
    }
    return names;
}

/// Without the name of a user, which a folder of the profiles' name stands before.
QStringList withoutUser(QStringList names, const QString& profilesFolder) {
    const int profiles =
        static_cast<int>(std::find_if(names.begin(), names.end(),
                                      [&](const QString& name) { return foldName(name) == foldName(profilesFolder); }) -
                         names.begin());
    if (profiles + 1 < names.size()) {
        names.removeAt(profiles + 1);
    }
    return names;
}

/// The keys whose names finders did not make up but read in a list.
QSet<QString> listedKeys(const TraceEvents& events) {
    QSet<QString> keys;
    for (const TraceEvent& event : events) {
        if (const auto* const subKeys = std::get_if<Trace::SubKeys>(&event)) {
            for (const QString& name : subKeys->names) {
                keys.insert(foldName(subKeys->place.key + QLatin1Char('\\') + name));
            }
        }
    }
    return keys;
}

void addListed(const QString& path, const QStringList& names, KnownPaths& known) {
    const std::optional<Recordings::DrivePath> folder = Recordings::DrivePath::parse(path);
    for (const QString& name : names) {
        if (folder) {
            known.add(pathIn(*folder, name));
        }
    }
}

void addListed(const TraceEvent& event, KnownPaths& known) {
    if (const auto* const list = std::get_if<Trace::List>(&event)) {
        addListed(list->path, list->names, known);
    } else if (const auto* const walk = std::get_if<Trace::Walk>(&event)) {
        addListed(walk->path, walk->files + walk->folders, known);
    }
}

/// The names in the question itself.
QStringList wordsOf(const TraceEvent& event, const QSet<QString>& listed) {
    if (const auto* const key = std::get_if<Trace::Key>(&event)) {
        return listed.contains(foldName(key->place.key)) ? QStringList() : QStringList{key->place.key};
    }
    if (const auto* const value = std::get_if<Trace::Value>(&event)) {
        return {value->name};
    }
    if (const auto* const variable = std::get_if<Trace::Environment>(&event)) {
        return {variable->name};
    }
    if (const auto* const list = std::get_if<Trace::List>(&event)) {
        return {list->pattern};
    }
    if (const auto* const shortcut = std::get_if<Trace::Shortcut>(&event)) {
        return {shortcut->path.section(QLatin1Char('.'), -1)}; // which finders know by their ending
    }
    return {};
}

/// The file or folder that was asked for; empty of other questions.
QString pathOf(const TraceEvent& event) {
    if (const auto* const exists = std::get_if<Trace::Exists>(&event)) {
        return exists->path;
    }
    if (const auto* const list = std::get_if<Trace::List>(&event)) {
        return list->path;
    }
    const auto* const read = std::get_if<Trace::Read>(&event);
    return read ? read->path : QString();
}

void addWordsOf(const FinderEntry& finder, QStringList& words) {
    static const FinderType* const folder = findFinderType(QStringLiteral("folder"));
    if (finder.type != folder) { // a folder's path is one of this PC, with its names
        words.append(finder.subject);
    }
    words += finder.executables;
    words.append(finder.folderName);
}

} // namespace

QStringList askedWords(const TraceEvents& events, const Catalogue& games, const Recordings::Pc& pc,
                       const QString& profilesFolder) {
    QStringList words;
    for (const Game& game : games) {
        forEachFinder(game.finders, [&words](const FinderEntry& finder) { addWordsOf(finder, words); });
    }
    const QSet<QString> listed = listedKeys(events);
    KnownPaths known(pc);
    for (const TraceEvent& event : events) {
        addListed(event, known);
    }
    for (const TraceEvent& event : events) {
        words += wordsOf(event, listed);
        if (const auto path = Recordings::DrivePath::parse(pathOf(event))) {
            words += withoutUser(known.unknownNames(*path), profilesFolder);
        }
    }
    words.removeDuplicates();
    return words;
}

} // namespace Find
