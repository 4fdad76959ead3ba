#include "find/explain/PluginTrace.h"

#include <QCoreApplication>
#include <QVariant>

namespace Find {

PluginTrace::PluginTrace() {
    m_lines.open(QIODevice::WriteOnly);
    QCoreApplication::instance()->setProperty(Trace::deviceProperty, QVariant::fromValue<QObject*>(&m_lines));
}

PluginTrace::~PluginTrace() {
    QCoreApplication::instance()->setProperty(Trace::deviceProperty, QVariant());
}

TraceEvents PluginTrace::take() {
    TraceEvents taken = parseTrace(m_lines.data());
    m_lines.buffer().clear();
    m_lines.seek(0);
    return taken;
}

} // namespace Find
