#pragma once

#include "platform/Registry.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

/// Tells the trace what is asked of one registry key. Knows nothing, and tells nothing, while the trace is off.
class TracedKey {
public:
    TracedKey() = default;

    /// The key was opened, or not: `error` says.
    TracedKey(const QString& subKey, quint32 hive, quint32 view, Platform::ErrorCode error);

    /// A value was asked for. `size` bytes of `data` came, if there was no error.
    void tellValue(const QString& name, Platform::ErrorCode error, quint32 type, const void* data, quint32 size) const;

    void tellSubKeys(const QStringList& names) const;

private:
    QJsonObject m_place; ///< the fields that name the key
};
