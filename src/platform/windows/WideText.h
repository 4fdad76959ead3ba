#pragma once

#include <QString>

namespace Platform {

/// A string as Windows takes it; valid as long as the string is unchanged.
inline const wchar_t* wide(const QString& text) {
    return reinterpret_cast<const wchar_t*>(text.utf16());
}

} // namespace Platform
