#include "platform/QtSettings.h"

namespace Platform {

std::unique_ptr<UserSettings> openUserSettings(const QString& organisation, const QString& application,
                                               const QString& group) {
    return std::make_unique<QtSettings>(organisation, application, group);
}

} // namespace Platform
