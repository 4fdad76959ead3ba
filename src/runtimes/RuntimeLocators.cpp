#include "runtimes/RuntimeLocators.h"

#include "support/Environment.h"
#include "support/Files.h"
#include "support/RegistryKey.h"

namespace Runtimes {

namespace {

constexpr RegistrySource varjo{View::view64, Hive::localMachine, u"Software\\Varjo\\Runtime", u"InstallDir"};
constexpr RegistrySource openXr{View::view64, Hive::localMachine, u"Software\\Khronos\\OpenXR\\1", u"ActiveRuntime"};

/// The setup program registers this name with the control character U+0096: the byte that is an en dash in the Western
/// ANSI code page. A key with a real en dash is another one.
constexpr RegistrySource lumavex{View::view64, Hive::currentUser, u"Software\\Lumavex \x0096 Standalone", u""};

} // namespace

QString oculusRuntimeFolder() {
    const QString base = environmentVariable(QStringLiteral("OculusBase"));
    if (base.isEmpty()) {
        return {};
    }
    const QString folder = base + QLatin1String("/Support/oculus-runtime");
    return Files::exists(folder + QLatin1String("/LibOVRRT64_1.dll")) ? folder : QString();
}

QString varjoRuntimeFolder() {
    return readRegistryString(varjo).trimmed();
}

QString openXrActiveRuntime() {
    return readRegistryString(openXr).trimmed();
}

QString lumavexStandaloneLocation() {
    return readRegistryString(lumavex).trimmed();
}

} // namespace Runtimes
