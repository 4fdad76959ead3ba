#include "host/recording/UserChoices.h"

#include "support/Platform.h"

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
