#include "core/UserProvidedLocationFinder.h"

#include "core/LocationFilling.h"
#include "core/UserChoices.h"
#include "support/Files.h"
#include "support/Logger.h"
#include "support/Paths.h"
#include "support/Trace.h"

namespace Finders {

namespace {

using Choices = UserChoices;

QStringList trimmedNames(const QStringList& names) {
    QStringList trimmed;
    for (const QString& name : names) {
        if (!name.trimmed().isEmpty()) {
            trimmed.append(name.trimmed());
        }
    }
    return trimmed;
}

int separatorsIn(const QString& name) {
    return name.count(QLatin1Char('\\')) + name.count(QLatin1Char('/'));
}

} // namespace

UserProvidedLocationFinder::UserProvidedLocationFinder(Logger* logger, const QString& key,
                                                       const QStringList& executables)
    : m_key(key.trimmed())
    , m_executables(trimmedNames(executables))
    , m_logger(logger) {}

bool UserProvidedLocationFinder::find(GameLocation& location) {
    const QString folder = userLocation();
    resetLocation(location, folder);
    if (folder.isEmpty()) {
        Trace::note("The user has chosen no folder for this game.");
        return false;
    }
    const QStringList found = collectExecutables(location, folder, m_executables);
    for (const QString& executable : found) {
        m_logger->logAlways("User: Found %ls", qUtf16Printable(executable));
    }
    if (found.isEmpty()) {
        m_logger->logError("User: Not found %ls", qUtf16Printable(folder));
    }
    return !found.isEmpty();
}

QString UserProvidedLocationFinder::userLocation() {
    if (m_key.isEmpty()) {
        return Choices::emptyText();
    }
    const QString folder = Choices().value(m_key).trimmed();
    Trace::tell([&] { return Trace::UserLocation{m_key, folder}; });
    return folder;
}

void UserProvidedLocationFinder::setUserLocation(const QString& path) {
    if (m_key.isEmpty()) {
        return;
    }
    const QString folder = path.isEmpty() ? path : installFolderFor(path);
    Choices choices;
    if (folder.isEmpty()) {
        choices.remove(m_key);
    } else {
        choices.setValue(m_key, folder);
    }
}

QString UserProvidedLocationFinder::installFolderFor(const QString& path) const {
    for (const QString& executable : m_executables) {
        if (Files::exists(Paths::join(path, executable))) {
            return path;
        }
        const int depth = separatorsIn(executable);
        const QString up = path + QString(QLatin1String("/..")).repeated(depth);
        if (depth > 0 && Files::exists(Paths::join(up, executable))) {
            return Paths::absoluteFolder(up);
        }
    }
    return path;
}

} // namespace Finders
