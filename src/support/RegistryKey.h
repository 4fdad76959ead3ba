#pragma once

#include "platform/Registry.h"
#include "support/TracedKey.h"

#include <QString>
#include <QStringList>

/// The root that a key is opened under. Any other code means currentUser.
namespace Hive {
constexpr quint32 localMachine = 0;
constexpr quint32 currentUser = 1;
constexpr quint32 classesRoot = 2;
constexpr quint32 users = 3;
} // namespace Hive

/// The registry view that a key is opened in. Any other non-zero flag means view32.
namespace View {
constexpr quint32 view64 = 0;
constexpr quint32 view32 = 1;
} // namespace View

/// One registry string that a finder knows of. Finders keep tables of these and try them in order; the texts are
/// constants of the program.
struct RegistrySource {
    quint32 view;
    quint32 hive;
    const char16_t* subKey;
    const char16_t* valueName; ///< empty for the key's default value
};

/// One open registry key, or none when opening failed. Keys are only ever opened for reading.
class RegistryKey {
public:
    static RegistryKey open(const QString& subKey, quint32 hive, quint32 view);

    /// The same through the narrow registry functions, for a key named in plain ASCII.
    static RegistryKey open(const char* subKey, quint32 hive, quint32 view);

    bool isOpen() const { return m_handle != nullptr; }

    /// The Windows error code of the last operation, 0 after success.
    Platform::ErrorCode status() const { return m_status; }

    /// Reads four bytes of any type. False when there is no such value or it is longer; `value` is then untouched. A
    /// shorter value replaces only the bytes that it has.
    bool readDword(const char* valueName, quint32& value);

    /// Reads text of any length, or a number as its decimal digits; a value of any other type reads as "?", and
    /// references to environment variables stay as they are. False when there is no such value, or when one that is
    /// not plain text is longer than 510 bytes; `value` is then untouched.
    bool readString(const QString& valueName, QString& value);

    /// Plain text only. Empty when there is no such value or it is of another type.
    QString text(const QString& valueName);

    /// Appends the names of the direct sub-keys in the registry's order, but for names of more than 255 characters.
    /// False only when the key is not open; an error on the way keeps the names before it.
    bool subKeyNames(QStringList& names);

private:
    RegistryKey() = default;

    bool readTyped(const QString& valueName, quint32& type, QString& value);
    bool readLongText(const QString& valueName, quint32 bytes, QString& value);
    Platform::ErrorCode listSubKeys(QStringList& names) const;

    TracedKey m_traced;
    Platform::KeyHandle m_handle;
    Platform::ErrorCode m_status = Platform::errorSuccess;
};

/// Opens a key, reads one string and closes the key. Empty when anything fails.
QString readRegistryString(const RegistrySource& source);
QString readRegistryString(const QString& subKey, quint32 hive, quint32 view, const QString& valueName);
