#pragma once

#include "support/Index.h"

#include <QString>

#include <list>
#include <vector>

class Logger;

/// One app that an Oculus library's manifests name.
struct OculusAppEntry {
    QString appId;
    QString manifestsFolder; ///< absolute, forward slashes
};

/// The apps in all Oculus libraries, as the names of their manifest files tell. An app that two libraries hold is
/// there twice.
class OculusLibraryIndex final : public Index<std::list<OculusAppEntry>> {
public:
    OculusLibraryIndex();

    /// The entries with exactly this identifier, in index order.
    std::vector<OculusAppEntry> findByAppId(const QString& appId);

private:
    void build(std::list<OculusAppEntry>& entries) override;
    void read(const QString& folder, std::list<OculusAppEntry>& entries, Logger& logger);

    IdTable<OculusAppEntry> m_appIds;
};
