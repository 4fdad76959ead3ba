#pragma once

#include "support/BuiltOnce.h"
#include "support/CriticalSection.h"
#include "support/NameTable.h"

#include <QString>

#include <list>
#include <vector>

/// One app of the Epic launcher: the texts of its manifest, under the manifest's own names. One that is missing is
/// empty.
struct EpicAppEntry {
    QString AppName;
    QString LaunchExecutable;
    QString LaunchCommand;
    QString InstallLocation;
    QString DisplayName;
    QString CatalogNamespace;
    QString CatalogItemId;
};

/// The apps that the Epic launcher's manifests name, in the order of their files. A manifest that can't be read, or
/// that names neither app nor place, adds none.
///
/// Built at the first question, whichever that is, and unchanged after it; any thread may ask. What is returned points
/// into the index.
class EpicManifestIndex {
public:
    const std::list<EpicAppEntry>& entries();

    /// The entries with this display name, by `matchMode` (support/NameTable.h), in index order.
    std::vector<const EpicAppEntry*> findByName(const QString& displayName, int matchMode);

private:
    struct Catalogue {
        std::list<EpicAppEntry> entries;
        NameTable<EpicAppEntry> names;
    };

    const Catalogue& catalogue();
    static void build(Catalogue& catalogue);

    BuiltOnce<Catalogue, CriticalSection> m_catalogue;
};
