#include "support/TracedKey.h"

#include "support/RegistryKey.h"
#include "support/Trace.h"

#include <QByteArray>
#include <QJsonArray>

namespace {

QString nameOf(quint32 hive) {
    switch (hive) {
    case Hive::localMachine:
        return QStringLiteral("HKEY_LOCAL_MACHINE");
    case Hive::classesRoot:
        return QStringLiteral("HKEY_CLASSES_ROOT");
    case Hive::users:
        return QStringLiteral("HKEY_USERS");
    default:
        return QStringLiteral("HKEY_CURRENT_USER");
    }
}

} // namespace

TracedKey::TracedKey(const QString& subKey, quint32 hive, quint32 view, Platform::ErrorCode error) {
    if (!Trace::isOn()) {
        return;
    }
    m_place = {{QStringLiteral("root"), nameOf(hive)},
               {QStringLiteral("view"), view == View::view64 ? 64 : 32},
               {QStringLiteral("key"), subKey}};
    QJsonObject fields = m_place;
    fields.insert(QStringLiteral("error"), static_cast<qint64>(error));
    Trace::tell("key", fields);
}

void TracedKey::tellValue(const QString& name, Platform::ErrorCode error, quint32 type, const void* data,
                          quint32 size) const {
    if (!Trace::isOn()) {
        return;
    }
    QJsonObject fields = m_place;
    fields.insert(QStringLiteral("name"), name);
    fields.insert(QStringLiteral("error"), static_cast<qint64>(error));
    if (error == Platform::errorSuccess) {
        const QByteArray bytes(static_cast<const char*>(data), static_cast<int>(size));
        fields.insert(QStringLiteral("type"), static_cast<qint64>(type));
        fields.insert(QStringLiteral("data"), QString::fromLatin1(bytes.toHex()));
    }
    Trace::tell("value", fields);
}

void TracedKey::tellSubKeys(const QStringList& names) const {
    if (!Trace::isOn()) {
        return;
    }
    QJsonObject fields = m_place;
    fields.insert(QStringLiteral("names"), QJsonArray::fromStringList(names));
    Trace::tell("subkeys", fields);
}
