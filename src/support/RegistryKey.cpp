#include "support/RegistryKey.h"

#include <array>
#include <cstring>
#include <iterator>
#include <vector>

namespace {

Platform::RootKey rootOf(quint32 hive) {
    switch (hive) {
    case Hive::localMachine:
        return Platform::RootKey::LocalMachine;
    case Hive::classesRoot:
        return Platform::RootKey::ClassesRoot;
    case Hive::users:
        return Platform::RootKey::Users;
    default:
        return Platform::RootKey::CurrentUser;
    }
}

quint32 accessOf(quint32 view) {
    return Platform::keyRead | (view == View::view64 ? Platform::keyWow64_64Key : Platform::keyWow64_32Key);
}

/// The text in the first `most` characters of a buffer, up to its first 0.
QString textOf(const char16_t* buffer, std::size_t most) {
    std::size_t length = 0;
    while (length < most && buffer[length] != u'\0') {
        ++length;
    }
    return QString(reinterpret_cast<const QChar*>(buffer), static_cast<int>(length));
}

} // namespace

RegistryKey RegistryKey::open(const QString& subKey, quint32 hive, quint32 view) {
    RegistryKey key;
    key.m_status = Platform::openKey(rootOf(hive), subKey, accessOf(view), key.m_handle);
    key.m_traced = TracedKey(subKey, hive, view, key.m_status);
    return key;
}

RegistryKey RegistryKey::open(const char* subKey, quint32 hive, quint32 view) {
    RegistryKey key;
    key.m_status = Platform::openKeyNarrow(rootOf(hive), subKey, accessOf(view), key.m_handle);
    key.m_traced = TracedKey(subKey, hive, view, key.m_status);
    return key;
}

bool RegistryKey::readDword(const char* valueName, quint32& value) {
    if (!isOpen()) {
        return false;
    }
    quint32 type = 0;
    quint32 number = value; // not the caller's own, of which a query that fails may leave anything
    quint32 size = sizeof number;
    m_status = Platform::queryValueNarrow(m_handle, valueName, type, &number, size);
    m_traced.tellValue(valueName, m_status, type, &number, size);
    if (m_status != Platform::errorSuccess) {
        return false;
    }
    value = number;
    return true;
}

bool RegistryKey::readString(const QString& valueName, QString& value) {
    quint32 type = 0;
    return readTyped(valueName, type, value);
}

QString RegistryKey::text(const QString& valueName) {
    quint32 type = 0;
    QString value;
    return readTyped(valueName, type, value) && type == Platform::regSz ? value : QString();
}

bool RegistryKey::readTyped(const QString& valueName, quint32& type, QString& value) {
    if (!isOpen()) {
        return false;
    }
    std::array<char16_t, 255> buffer{};
    quint32 size = sizeof buffer;
    m_status = Platform::queryValue(m_handle, valueName, type, buffer.data(), size);
    if (m_status == Platform::errorMoreData && type == Platform::regSz) {
        return readLongText(valueName, size, value);
    }
    m_traced.tellValue(valueName, m_status, type, buffer.data(), size);
    if (m_status != Platform::errorSuccess) {
        return false;
    }

    if (type == Platform::regSz) {
        value = textOf(buffer.data(), size / sizeof(char16_t));
    } else if (type == Platform::regDword) {
        quint32 number = 0;
        std::memcpy(&number, buffer.data(), sizeof number);
        value = QString::number(number);
    } else {
        value = QString(QLatin1Char('?'));
    }
    return true;
}

bool RegistryKey::readLongText(const QString& valueName, quint32 bytes, QString& value) {
    std::vector<char16_t> buffer(bytes / sizeof(char16_t) + 1, u'\0');
    quint32 type = 0;
    auto size = static_cast<quint32>(buffer.size() * sizeof(char16_t));
    m_status = Platform::queryValue(m_handle, valueName, type, buffer.data(), size);
    m_traced.tellValue(valueName, m_status, type, buffer.data(), size);
    if (m_status != Platform::errorSuccess) {
        return false;
    }
    buffer.back() = u'\0';
    value = textOf(buffer.data(), buffer.size());
    return true;
}

bool RegistryKey::subKeyNames(QStringList& names) {
    if (!isOpen()) {
        return false;
    }
    QStringList listed;
    m_status = listSubKeys(listed);
    m_traced.tellSubKeys(listed);
    names += listed;
    return true;
}

Platform::ErrorCode RegistryKey::listSubKeys(QStringList& names) const {
    for (quint32 index = 0;; ++index) {
        std::array<char16_t, 256> name{};
        auto length = static_cast<quint32>(name.size());
        const Platform::ErrorCode status = Platform::enumKey(m_handle, index, name.data(), length);
        if (status == Platform::errorSuccess) {
            names.append(QString(reinterpret_cast<const QChar*>(name.data()), static_cast<int>(length)));
        } else if (status == Platform::errorNoMoreItems) {
            return Platform::errorSuccess;
        } else if (status != Platform::errorMoreData) {
            return status;
        }
    }
}

QString readRegistryString(const RegistrySource& source) {
    return readRegistryString(QString::fromUtf16(source.subKey), source.hive, source.view,
                              QString::fromUtf16(source.valueName));
}

QString readRegistryString(const QString& subKey, quint32 hive, quint32 view, const QString& valueName) {
    QString value;
    RegistryKey::open(subKey, hive, view).readString(valueName, value);
    return value;
}
