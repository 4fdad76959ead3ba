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
    if (const auto* const folder = std::get_if<Trace::ShellFolder>(&event)) {
        addShellFolder(*folder);
    } else if (const auto* const volume = std::get_if<Trace::Volume>(&event)) {
        if (!volume->name.isEmpty()) {
            m_volumes.insert(volume->drive.left(1), volume->name);
        }
    } else if (const auto* const variable = std::get_if<Trace::Environment>(&event)) {
        if (variable->value) {
            m_environment.insert(variable->name, *variable->value);
        }
    } else if (const auto* const location = std::get_if<Trace::UserLocation>(&event)) {
        addUserLocation(*location);
    } else if (const auto* const package = std::get_if<Trace::Package>(&event)) {
        addPackage(*package);
    } else if (const auto* const walk = std::get_if<Trace::Walk>(&event)) {
        addAttributes(*walk);
    }
}

void PcFacts::addShellFolder(const Trace::ShellFolder& event) {
    const auto* const folder = std::find_if(std::begin(Recording::shellFolders), std::end(Recording::shellFolders),
                                            [&](const auto& known) { return known.csidl == event.csidl; });
    if (folder != std::end(Recording::shellFolders) && !event.path.isEmpty()) {
        m_shellFolders.insert(QLatin1String(folder->name), event.path);
    }
}

/// The catalogue may write a key in other letter case than the settings do.
void PcFacts::addUserLocation(const Trace::UserLocation& event) {
    const bool isKnown = std::any_of(m_userLocations.keyBegin(), m_userLocations.keyEnd(), [&](const QString& known) {
        return Windows::foldName(known) == Windows::foldName(event.key);
    });
    if (!event.path.isEmpty() && !isKnown) {
        m_userLocations.insert(event.key, event.path);
    }
}

void PcFacts::addPackage(const Trace::Package& event) {
    if (!event.supported) {
        return;
    }
    if (!m_packages) {
        m_packages.emplace();
    }
    const bool isKnown = std::any_of(m_packages->begin(), m_packages->end(), [&](const RecordedPackage& known) {
        return known.family.compare(event.family, Qt::CaseInsensitive) == 0;
    });
    if (!event.fullName.isEmpty() && !isKnown) {
        m_packages->push_back({event.family, event.fullName, event.applicationId});
    }
}

void PcFacts::addAttributes(const Trace::Walk& event) {
    const std::optional<Windows::DrivePath> folder = Windows::DrivePath::parse(event.path);
    if (!folder) {
        return;
    }
    const QString path = folder->isRoot() ? folder->text() : folder->text() + QLatin1Char('/');
    const auto add = [&](const QStringList& names, QStringList& paths) {
        for (const QString& name : names) {
            const QString entry = QString(path + name).replace(QLatin1Char('/'), QLatin1Char('\\'));
            if (!paths.contains(entry)) {
                paths.append(entry);
            }
        }
    };
    add(event.hidden, m_hidden);
    add(event.system, m_system);
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
