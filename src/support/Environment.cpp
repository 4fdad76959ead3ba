#include "support/Environment.h"

#include "platform/Process.h"
#include "support/Trace.h"

#include <QStringList>

#include <algorithm>
#include <optional>

namespace {

/// The name as the environment spells it: in the environment of a recorded PC, Qt minds letter case. Empty when there
/// is none.
QString spelledName(const QStringList& names, const QString& name) {
    const auto found = std::find_if(names.begin(), names.end(), [&name](const QString& candidate) {
        return candidate.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found != names.end() ? *found : QString();
}

} // namespace

QString environmentVariable(const QString& name) {
    const QProcessEnvironment environment = Platform::systemEnvironment();
    const QString spelled = spelledName(environment.keys(), name);
    const QString value = spelled.isEmpty() ? QString() : environment.value(spelled);
    Trace::tell([&] {
        return Trace::Environment{name, spelled.isEmpty() ? std::nullopt : std::optional<QString>(value)};
    });
    return value;
}
