#include "support/Environment.h"

#include "support/Platform.h"
#include "support/Trace.h"

QString environmentVariable(const QString& name) {
    const QProcessEnvironment environment = Platform::systemEnvironment();
    const QString value = environment.value(name);
    if (Trace::isOn()) {
        QJsonObject fields{{QStringLiteral("name"), name}};
        if (environment.contains(name)) {
            fields.insert(QStringLiteral("value"), value);
        }
        Trace::tell("environment", fields);
    }
    return value;
}
