#pragma once

#include "platform/Registry.h"
#include "trace/Events.h"

#include <QString>
#include <QStringList>

/// Tells the trace what is asked of one registry key. Knows nothing, and tells nothing, while the trace is off.
class TracedKey {
public:
    TracedKey() = default;

    /// The key was opened, or not: `error` says.
    TracedKey(const QString& subKey, quint32 hive, quint32 view, Platform::ErrorCode error) noexcept;
    TracedKey(const char* subKey, quint32 hive, quint32 view, Platform::ErrorCode error) noexcept;

    /// A value was asked for. `size` bytes of `data` came, if there was no error.
    void tellValue(const QString& name, Platform::ErrorCode error, quint32 type, const void* data,
                   quint32 size) const noexcept;
    void tellValue(const char* name, Platform::ErrorCode error, quint32 type, const void* data,
                   quint32 size) const noexcept;

    void tellSubKeys(const QStringList& names) const noexcept;

private:
    Trace::KeyPlace m_place;
    bool m_isKnown = false;
};
