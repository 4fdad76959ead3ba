#pragma once

#include "support/BuiltOnce.h"

#include <QString>

#include <list>

/// One program of the Uninstall registry. A value that is missing or not text is empty.
struct UninstallEntry {
    QString keyPath; ///< below its root, in either registry view
    QString displayName;
    QString installLocation;
    QString uninstallString;
};

/// The programs of the Uninstall registry: every entry of both views, the machine's and the user's.
class UninstallIndex {
private:
    BuiltOnce<std::list<UninstallEntry>> m_entries;
};
