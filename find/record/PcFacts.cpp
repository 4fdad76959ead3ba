#include "find/record/PcFacts.h"

#include "recordings/DrivePath.h"
#include "recordings/ShellFolderNames.h"
#include "recordings/WindowsNames.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <iterator>

namespace Host {

namespace {

QJsonObject jsonOf(const QMap<QString, QString>& texts, const NeutralNames& names) {
    QJsonObject object;
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        object.insert(text.key(), names.text(text.value()));
    }
    return object;
}

QJsonArray jsonOf(const QStringList& paths, const NeutralNames& names) {
    QJsonArray array;
    for (const QString& path : paths) {
        array.append(names.text(path));
    }
    return array;
}

/// A package's identifiers name its maker, not the user; with other ones it would not be found.
QJsonArray jsonOf(const std::vector<RecordedPackage>& packages) {
    QJsonArray array;
    for (const RecordedPackage& package : packages) {
        const QJsonArray ids = package.applicationId.isEmpty() ? QJsonArray() : QJsonArray{package.applicationId};
        array.append(QJsonObject{{QStringLiteral("family"), package.family},
                                 {QStringLiteral("fullName"), package.fullName},
                                 {QStringLiteral("applicationIds"), ids}});
    }
    return array;
}

} // namespace

void PcFacts::add(const TraceEvent& event) {
    if (event.is("shellFolder")) {
        addShellFolder(event);
    } else if (event.is("volume") && !event.text("name").isEmpty()) {
        m_volumes.insert(event.text("drive").left(1), event.text("name"));
    } else if (event.is("environment") && event.has("value")) {
        m_environment.insert(event.text("name"), event.text("value"));
    } else if (event.is("userLocation") && !event.text("path").isEmpty()) {
        addUserLocation(event);
    } else if (event.is("package")) {
        addPackage(event);
    } else if (event.is("walk")) {
        addAttributes(event);
    }
}

void PcFacts::addShellFolder(const TraceEvent& event) {
    const auto* const folder = std::find_if(std::begin(Recordings::shellFolders), std::end(Recordings::shellFolders),
                                            [&](const auto& known) { return known.csidl == event.number("csidl"); });
    if (folder != std::end(Recordings::shellFolders) && !event.text("path").isEmpty()) {
        m_shellFolders.insert(QLatin1String(folder->name), event.text("path"));
    }
}

/// The catalogue may write a key in other letter case than the settings do.
void PcFacts::addUserLocation(const TraceEvent& event) {
    const QString key = event.text("key");
    const bool isKnown = std::any_of(m_userLocations.keyBegin(), m_userLocations.keyEnd(), [&](const QString& known) {
        return Recordings::foldName(known) == Recordings::foldName(key);
    });
    if (!isKnown) {
        m_userLocations.insert(key, event.text("path"));
    }
}

void PcFacts::addPackage(const TraceEvent& event) {
    if (!event.flag("supported")) {
        return;
    }
    if (!m_packages) {
        m_packages.emplace();
    }
    const QString family = event.text("family");
    const bool isKnown = std::any_of(m_packages->begin(), m_packages->end(), [&](const RecordedPackage& known) {
        return known.family.compare(family, Qt::CaseInsensitive) == 0;
    });
    if (!event.text("fullName").isEmpty() && !isKnown) {
        m_packages->push_back({family, event.text("fullName"), event.text("applicationId")});
    }
}

void PcFacts::addAttributes(const TraceEvent& event) {
    const std::optional<Recordings::DrivePath> folder = Recordings::DrivePath::parse(event.text("path"));
    if (!folder) {
        return;
    }
    const QString path = folder->isRoot() ? folder->text() : folder->text() + QLatin1Char('/');
    const auto add = [&](const char* field, QStringList& paths) {
        const QStringList names = event.texts(field);
        for (const QString& name : names) {
            const QString entry = QString(path + name).replace(QLatin1Char('/'), QLatin1Char('\\'));
            if (!paths.contains(entry)) {
                paths.append(entry);
            }
        }
    };
    add("hidden", m_hidden);
    add("system", m_system);
}

QByteArray PcFacts::render(const NeutralNames& names) const {
    QJsonObject root;
    const auto insert = [&root](const char* name, const auto& value) {
        if (!value.isEmpty()) {
            root.insert(QLatin1String(name), value);
        }
    };
    insert("shellFolders", jsonOf(m_shellFolders, names));
    insert("volumes", jsonOf(m_volumes, names));
    insert("environment", jsonOf(m_environment, names));
    insert("userLocations", jsonOf(m_userLocations, names));
    insert("hidden", jsonOf(m_hidden, names));
    insert("system", jsonOf(m_system, names));
    if (m_packages) {
        root.insert(QStringLiteral("packages"), jsonOf(*m_packages)); // an empty list says something, too
    }
    return QJsonDocument(root).toJson();
}

int PcFacts::packageCount() const {
    return m_packages ? static_cast<int>(m_packages->size()) : 0;
}

} // namespace Host
