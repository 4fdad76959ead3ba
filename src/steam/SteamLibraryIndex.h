#pragma once

#include "support/BuiltOnce.h"
#include "support/NameTable.h"

#include <QString>

#include <list>
#include <vector>

class Logger;

/// One app that a Steam library's manifests name.
struct SteamAppEntry {
    QString appId;
    QString commonFolder; ///< the folder that holds the library's install folders; forward slashes
};

/// The apps in all libraries of the Steam client, the client's own first. An app that two libraries hold is there
/// twice. Empty when there is no Steam client.
///
/// Built at the first question, whichever that is, and unchanged after it; any thread may ask. What is returned points
/// into the index.
class SteamLibraryIndex {
public:
    const std::list<SteamAppEntry>& entries();

    /// The entries with exactly this identifier, as text, in index order.
    std::vector<const SteamAppEntry*> findByAppId(const QString& appId);

private:
    struct Catalogue {
        std::list<SteamAppEntry> entries;
        IdTable<SteamAppEntry> appIds;
    };

    const Catalogue& catalogue();
    static void build(Catalogue& catalogue);

    BuiltOnce<Catalogue> m_catalogue;
};
