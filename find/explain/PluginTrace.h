#pragma once

#include "find/explain/TraceReader.h"

#include <QString>
#include <QTemporaryDir>
#include <QtGlobal>

namespace Host {

/// Has the plug-in tell a trace of what it asks of the PC, into a file that goes with this object. To be made before
/// the factory, and to outlive the plug-in, which keeps the file open.
class PluginTrace {
public:
    PluginTrace();
    ~PluginTrace();

    /// False when the file could not be made; nothing is traced then.
    bool isOn() const { return m_isOn; }

    /// What was told so far.
    TraceEvents events() const;

private:
    Q_DISABLE_COPY_MOVE(PluginTrace)

    QString file() const;

    QTemporaryDir m_folder;
    QString m_before; ///< where the user has the trace told
    bool m_isOn = false;
};

} // namespace Host
