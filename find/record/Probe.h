#pragma once

#include <QString>

namespace Find {

/// The name of an executable that no game has: who looks for it looks everywhere and never stops early.
inline QString probeName() {
    return QStringLiteral("luruludri-record-probe");
}

} // namespace Find
