#pragma once

#include "find/explain/TraceReader.h"

#include <QByteArray>
#include <QString>

/// Events as the library tells them, for tests to describe what was read.
namespace TestTrace {

inline Find::TraceEvent key(const char* root, int view, const QString& path, quint32 error = 0) {
    return Trace::Key{{root, view, path}, error};
}

/// A value that was read.
inline Find::TraceEvent value(const char* root, int view, const QString& path, const QString& name, quint32 type,
                              const QByteArray& data) {
    return Trace::Value{{root, view, path}, name, 0, type, data};
}

/// The bytes of a string as the registry stores it.
inline QByteArray stored(const QString& text) {
    return QByteArray(reinterpret_cast<const char*>(text.utf16()), (text.size() + 1) * 2);
}

inline Find::TraceEvent text(const char* root, int view, const QString& path, const QString& name,
                             const QString& text) {
    return value(root, view, path, name, 1, stored(text));
}

inline Find::TraceEvent exists(const QString& path, bool found) {
    return Trace::Exists{path, found};
}

} // namespace TestTrace
