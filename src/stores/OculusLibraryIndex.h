#pragma once

#include "support/BuiltOnce.h"

#include <QString>

#include <list>

/// One app that an Oculus library's manifests name.
struct OculusAppEntry {
    QString appId;
    QString manifestsFolder; ///< absolute, forward slashes
};

/// The apps in all Oculus libraries.
class OculusLibraryIndex {
private:
    BuiltOnce<std::list<OculusAppEntry>> m_entries;
};
