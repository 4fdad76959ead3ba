#include "find/record/UserChoices.h"

#include "platform/Folders.h"

#include <QSettings>

namespace Host {

QStringList userChoiceKeys() {
    QSettings settings(QSettings::UserScope, QStringLiteral("Veltrane"), QStringLiteral("Quorvan"));
    settings.beginGroup(QStringLiteral("UserProvidedLocations"));
    QStringList keys = settings.allKeys() + Platform::recordedUserLocationKeys();
    keys.removeDuplicates();
    return keys;
}

} // namespace Host
