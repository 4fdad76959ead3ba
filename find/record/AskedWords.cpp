#include "find/record/AskedWords.h"

#include "find/record/UsedParts.h"
#include "recordings/RegValues.h"
#include "recordings/ShellLink.h"
#include "recordings/WindowsNames.h"

#include <QSet>

#include <algorithm>

namespace Host {

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
        if (event.is("subkeys")) {
            const QStringList names = event.texts("names");
            for (const QString& name : names) {
                keys.insert(foldName(event.text("key") + QLatin1Char('\\') + name));
            }
        }
    }
    return keys;
}

void addListed(const TraceEvent& event, KnownPaths& known) {
    const std::optional<Recordings::DrivePath> folder = Recordings::DrivePath::parse(event.text("path"));
    for (const char* const field : {"names", "files", "folders"}) {
        const QStringList names = folder ? event.texts(field) : QStringList();
        for (const QString& name : names) {
            known.add(pathIn(*folder, name));
        }
    }
}

} // namespace

QStringList askedWords(const TraceEvents& events, const Recordings::Pc& pc, const QString& profilesFolder) {
    QStringList words;
    const QSet<QString> listed = listedKeys(events);
    KnownPaths known(pc);
    for (const TraceEvent& event : events) {
        if (event.is("list") || event.is("walk")) {
            addListed(event, known);
        }
    }
    for (const TraceEvent& event : events) {
        if (event.is("key") && !listed.contains(foldName(event.text("key")))) {
            words.append(event.text("key"));
        } else if (event.is("value") || event.is("environment")) {
            words.append(event.text("name"));
        }
        if (event.is("list")) {
            words.append(event.text("pattern"));
        } else if (event.is("shortcut")) { // which finders know by their ending
            words.append(event.text("path").section(QLatin1Char('.'), -1));
        }
        const bool isOfFile = event.is("exists") || event.is("list") || event.is("read");
        if (const auto path = isOfFile ? Recordings::DrivePath::parse(event.text("path")) : std::nullopt) {
            words += withoutUser(known.unknownNames(*path), profilesFolder);
        }
    }
    words.removeDuplicates();
    return words;
}

} // namespace Host
