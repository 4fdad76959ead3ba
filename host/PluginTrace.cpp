#include "host/PluginTrace.h"

#include "host/Environment.h"

#include <QFile>

namespace Host {

namespace {

constexpr const char* variable = "LURULUDRI_TRACE"; // docs/trace.md

} // namespace

PluginTrace::PluginTrace()
    : m_before(qEnvironmentVariable(variable)) {
    m_isOn = m_folder.isValid() && setEnvironmentVariable(variable, file());
}

PluginTrace::~PluginTrace() {
    setEnvironmentVariable(variable, m_before);
}

TraceEvents PluginTrace::events() const {
    QFile trace(file());
    return trace.open(QIODevice::ReadOnly) ? parseTrace(trace.readAll()) : TraceEvents();
}

QString PluginTrace::file() const {
    return m_folder.filePath(QStringLiteral("trace"));
}

} // namespace Host
