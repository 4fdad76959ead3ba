#pragma once

#include "support/BuiltOnce.h"

#include <QStringList>

/// The full paths of all Start-menu shortcuts, the user's before those of all users.
class StartMenuIndex {
private:
    BuiltOnce<QStringList> m_entries;
};
