#pragma once

#include "support/Index.h"

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
class SteamLibraryIndex final : public Index<std::list<SteamAppEntry>> {
public:
    SteamLibraryIndex();

    /// The entries with exactly this identifier, as text, in index order.
    std::vector<SteamAppEntry> findByAppId(const QString& appId);

private:
    void build(std::list<SteamAppEntry>& entries) override;
    void read(const QString& folder, std::list<SteamAppEntry>& entries, Logger& logger);

    IdTable<SteamAppEntry> m_appIds;
};
