#pragma once

#include "find/explain/TraceReader.h"

#include <QBuffer>
#include <QtGlobal>

namespace Find {

/// Has the plug-in tell a trace of what it asks of the PC, to the memory of this process: also in a process that runs
/// as administrator, where the plug-in does not go by the environment, and without a file that would hold private
/// names. To be made in the thread of the QCoreApplication, before the factory.
class PluginTrace {
public:
    PluginTrace();
    ~PluginTrace();

    /// What was told so far, each event once.
    TraceEvents take();

private:
    Q_DISABLE_COPY_MOVE(PluginTrace)

    QBuffer m_lines;
};

} // namespace Find
