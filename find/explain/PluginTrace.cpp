#include "find/explain/PluginTrace.h"

#include "find/cli/Environment.h"
#include "support/TraceEvents.h"

#include <QFile>

namespace Host {

PluginTrace::PluginTrace()
    : m_before(qEnvironmentVariable(Trace::environmentVariable)) {
    m_isOn = m_folder.isValid() && setEnvironmentVariable(Trace::environmentVariable, file());
}

PluginTrace::~PluginTrace() {
    setEnvironmentVariable(Trace::environmentVariable, m_before);
}

TraceEvents PluginTrace::events() const {
    QFile trace(file());
    return trace.open(QIODevice::ReadOnly) ? parseTrace(trace.readAll()) : TraceEvents();
}

QString PluginTrace::file() const {
    return m_folder.filePath(QStringLiteral("trace"));
}

} // namespace Host
