#pragma once

#include "support/BuiltOnce.h"
#include "support/NameTable.h"

#include <QString>

#include <list>
#include <vector>

/// One app that an Oculus library's manifests name.
struct OculusAppEntry {
    QString appId;
    QString manifestsFolder; ///< absolute, forward slashes
};

/// The apps in all Oculus libraries, as the names of their manifest files tell. An app that two libraries hold is
/// there twice.
///
/// Built at the first question, whichever that is, and unchanged after it; any thread may ask. What is returned points
/// into the index.
class OculusLibraryIndex {
public:
    const std::list<OculusAppEntry>& entries();

    /// The entries with exactly this identifier, in index order.
    std::vector<const OculusAppEntry*> findByAppId(const QString& appId);

private:
    struct Catalogue {
        std::list<OculusAppEntry> entries;
        IdTable<OculusAppEntry> appIds;
    };

    const Catalogue& catalogue();
    static void build(Catalogue& catalogue);

    BuiltOnce<Catalogue> m_catalogue;
};
