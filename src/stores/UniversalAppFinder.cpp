#include "stores/UniversalAppFinder.h"

#include "core/LocationFilling.h"
#include "stores/PackageQueries.h"
#include "support/Logger.h"
#include "support/Trace.h"

namespace Finders {

namespace {

void tellPackage(const QString& family, bool isSupported, const QString& fullName, const QStringList& applicationIds) {
    Trace::tell([&] { return Trace::Package{family, isSupported, fullName, applicationIds}; });
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
        const bool isSupported = functions.getPackagesByPackageFamily != nullptr;
        tellPackage(family, isSupported, fullName, {});
        Trace::note(isSupported ? "The app package is not installed." : "This Windows knows no app packages.");
        logger().logAlways("UAPP: Not found '%ls'", qUtf16Printable(family));
        return false;
    }
    QStringList appIds;
    for (const std::u16string& id : applicationIdsOf(fullName.toStdU16String(), functions)) {
        appIds.append(QString::fromStdU16String(id));
    }
    tellPackage(family, true, fullName, appIds);
    const QString appId = appIds.value(0);
    logger().logAlways("UAPP: Checking '%ls' '%ls'", qUtf16Printable(fullName), qUtf16Printable(appId));
    if (appId.isEmpty()) {
        Trace::note("The app package has no application that could be started.");
        return false;
    }

    resetLocation(location, fullName);
    addExecutable(location, QString(), QLatin1String("uapp://") + appId);
    return true;
}

} // namespace Finders
