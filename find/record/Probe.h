#pragma once

#include <QString>

#include <algorithm>
#include <optional>

namespace Find {

/// The name of an executable that no game has: who looks for it looks everywhere and never stops early.
inline QString probeName() {
    return QStringLiteral("luruludri-record-probe");
}

inline bool isSeparator(QChar character) {
    return character == QLatin1Char('\\') || character == QLatin1Char('/');
}

/// The folder in which the probe was looked for; none when something else was.
inline std::optional<QString> folderOfProbe(const QString& path) {
    const int end = path.size() - probeName().size();
    const bool isProbe = path.endsWith(probeName()) && (end == 0 || isSeparator(path.at(end - 1)));
    return isProbe ? std::optional<QString>(path.left(std::max(end - 1, 0))) : std::nullopt;
}

} // namespace Find
