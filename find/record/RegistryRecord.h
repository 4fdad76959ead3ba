#pragma once

#include "find/explain/TraceReader.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <map>

namespace Host {

struct RecordedValue {
    QString name;
    quint32 type = 0;
    QByteArray data; ///< as the registry stores it
};

struct RecordedKey {
    QString root;                            ///< "HKEY_LOCAL_MACHINE"
    QStringList path;                        ///< where Windows keeps it: the 32-bit view's below Wow6432Node
    std::map<QString, RecordedValue> values; ///< by folded name
};

/// The keys and values that a trace tells of.
class RegistryRecord {
public:
    /// Takes what the event tells of the registry; nothing of any other event.
    void add(const TraceEvent& event);

    /// By folded path, so that keys come before those below them.
    const std::map<QString, RecordedKey>& keys() const { return m_keys; }

    int valueCount() const;

private:
    void addValue(const Trace::Value& event);
    RecordedKey& makeKey(const Trace::KeyPlace& place, const QString& below = {});

    std::map<QString, RecordedKey> m_keys;
};

} // namespace Host
