#include "support/TracedKey.h"

#include "support/RegistryKey.h"
#include "support/Trace.h"

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

TracedKey::TracedKey(const QString& subKey, quint32 hive, quint32 view, Platform::ErrorCode error) noexcept {
    if (!Trace::isOn()) {
        return;
    }
    m_place = {nameOf(hive), view == View::view64 ? 64 : 32, subKey};
    m_isKnown = true;
    Trace::tell([&] { return Trace::Key{m_place, error}; });
}

TracedKey::TracedKey(const char* subKey, quint32 hive, quint32 view, Platform::ErrorCode error) noexcept {
    if (Trace::isOn()) {
        Trace::attempt([&] { *this = TracedKey(QString::fromLatin1(subKey), hive, view, error); });
    }
}

void TracedKey::tellValue(const QString& name, Platform::ErrorCode error, quint32 type, const void* data,
                          quint32 size) const noexcept {
    if (!m_isKnown) {
        return;
    }
    Trace::tell([&] {
        const QByteArray bytes = error == Platform::errorSuccess
                                     ? QByteArray(static_cast<const char*>(data), static_cast<int>(size))
                                     : QByteArray();
        return Trace::Value{m_place, name, error, type, bytes};
    });
}

void TracedKey::tellValue(const char* name, Platform::ErrorCode error, quint32 type, const void* data,
                          quint32 size) const noexcept {
    if (m_isKnown) {
        Trace::attempt([&] { tellValue(QString::fromLatin1(name), error, type, data, size); });
    }
}

void TracedKey::tellSubKeys(const QStringList& names) const noexcept {
    if (m_isKnown) {
        Trace::tell([&] { return Trace::SubKeys{m_place, names}; });
    }
}
