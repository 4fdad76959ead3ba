#include "stores/UniversalAppFinder.h"

#include "core/LocationFilling.h"
#include "stores/PackageFunctions.h"
#include "stores/PackageQueries.h"
#include "support/Logger.h"

namespace Finders {

UniversalAppFinder::UniversalAppFinder(Logger* logger, const QString& packageFamily)
    : AbstractFinder(logger)
    , m_packageFamily(packageFamily.toStdU16String()) {}

bool UniversalAppFinder::find(GameLocation& location) {
    const PackageFunctions functions = systemPackageFunctions();
    const QString fullName = QString::fromStdU16String(packageFullNameOf(m_packageFamily, functions));
    if (fullName.isEmpty()) {
        logger().logAlways("UAPP: Not found '%ls'", qUtf16Printable(QString::fromStdU16String(m_packageFamily)));
        return false;
    }
    const QString appId = QString::fromStdU16String(applicationIdOf(fullName.toStdU16String(), functions));
    logger().logAlways("UAPP: Checking '%ls' '%ls'", qUtf16Printable(fullName), qUtf16Printable(appId));
    if (appId.isEmpty()) {
        return false;
    }

    resetLocation(location);
    location.installFolder = fullName;
    addExecutable(location, QString(), QLatin1String("uapp://") + appId);
    return true;
}

} // namespace Finders
