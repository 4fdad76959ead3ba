#pragma once

#include "support/CriticalSection.h"
#include "support/Index.h"

#include <QString>

#include <list>
#include <vector>

class Logger;
class QDir;

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
class EpicManifestIndex final : public Index<std::list<EpicAppEntry>, CriticalSection> {
public:
    EpicManifestIndex();

    /// The entries with this display name, by `matchMode` (support/NameTable.h), in index order.
    std::vector<EpicAppEntry> findByName(const QString& displayName, int matchMode);

private:
    void build(std::list<EpicAppEntry>& entries) override;
    void read(const QDir& folder, const QString& manifest, std::list<EpicAppEntry>& entries, Logger& logger);

    NameTable<EpicAppEntry> m_names;
};
