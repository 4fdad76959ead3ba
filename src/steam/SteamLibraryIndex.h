#pragma once

#include "support/BuiltOnce.h"

#include <QString>

#include <list>

/// One app that a Steam library's manifests name.
struct SteamAppEntry {
    QString appId;
    QString commonFolder; ///< the folder that holds the library's install folders; forward slashes
};

/// The apps in all libraries of the Steam client.
class SteamLibraryIndex {
private:
    BuiltOnce<std::list<SteamAppEntry>> m_entries;
};
