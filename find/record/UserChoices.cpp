#include "find/record/UserChoices.h"

#include "platform/Settings.h"

namespace Find {

QStringList userChoiceKeys() {
    return Platform::openUserSettings(QStringLiteral("Veltrane"), QStringLiteral("Quorvan"),
                                      QStringLiteral("UserProvidedLocations"))
        ->allKeys();
}

} // namespace Find
