#pragma once

#include "find/explain/TraceReader.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

/// Events as the library tells them, for tests to describe what was read.
namespace TestTrace {

inline Host::TraceEvent event(const char* name, QJsonObject fields) {
    fields.insert("event", name);
    return Host::TraceEvent(fields);
}

inline Host::TraceEvent key(const char* root, int view, const QString& path, int error = 0) {
    return event("key", {{"root", root}, {"view", view}, {"key", path}, {"error", error}});
}

/// A value that was read, its data in hexadecimal digits.
inline Host::TraceEvent value(const char* root, int view, const QString& path, const QString& name, int type,
                              const QByteArray& data) {
    return event("value", {{"root", root},
                           {"view", view},
                           {"key", path},
                           {"name", name},
                           {"error", 0},
                           {"type", type},
                           {"data", QString::fromLatin1(data.toHex())}});
}

/// The bytes of a string as the registry stores it.
inline QByteArray stored(const QString& text) {
    return QByteArray(reinterpret_cast<const char*>(text.utf16()), (text.size() + 1) * 2);
}

inline Host::TraceEvent text(const char* root, int view, const QString& path, const QString& name,
                             const QString& text) {
    return value(root, view, path, name, 1, stored(text));
}

inline Host::TraceEvent exists(const QString& path, bool found) {
    return event("exists", {{"path", path}, {"found", found}});
}

} // namespace TestTrace
