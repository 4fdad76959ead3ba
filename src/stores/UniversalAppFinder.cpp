#include "stores/UniversalAppFinder.h"

#include "core/LocationFilling.h"
#include "stores/PackageQueries.h"
#include "support/Logger.h"
#include "support/Trace.h"

namespace Finders {

namespace {

void tellPackage(const QString& family, bool isSupported, const QString& fullName, const QString& applicationId) {
    Trace::tell([&] { return Trace::Package{family, isSupported, fullName, applicationId}; });
}

} // namespace

UniversalAppFinder::UniversalAppFinder(Logger* logger, const QString& packageFamily)
    : AbstractFinder(logger)
    , m_packageFamily(packageFamily.toStdU16String()) {}

bool UniversalAppFinder::find(GameLocation& location) {
    const PackageFunctions functions = systemPackageFunctions();
    const QString fullName = QString::fromStdU16String(packageFullNameOf(m_packageFamily, functions));
    const QString family = QString::fromStdU16String(m_packageFamily);
    if (fullName.isEmpty()) {
        tellPackage(family, functions.getPackagesByPackageFamily != nullptr, fullName, QString());
        logger().logAlways("UAPP: Not found '%ls'", qUtf16Printable(family));
        return false;
    }
    const QString appId = QString::fromStdU16String(applicationIdOf(fullName.toStdU16String(), functions));
    tellPackage(family, true, fullName, appId);
    logger().logAlways("UAPP: Checking '%ls' '%ls'", qUtf16Printable(fullName), qUtf16Printable(appId));
    if (appId.isEmpty()) {
        return false;
    }

    resetLocation(location, fullName);
    addExecutable(location, QString(), QLatin1String("uapp://") + appId);
    return true;
}

} // namespace Finders
