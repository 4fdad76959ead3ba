#include "platform/QtSettings.h"

namespace Platform {

std::unique_ptr<UserSettings> openUserLocations() {
    return std::make_unique<QtSettings>();
}

} // namespace Platform
