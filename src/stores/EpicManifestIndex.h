#pragma once

#include "support/BuiltOnce.h"
#include "support/CriticalSection.h"

#include <QString>

#include <list>

/// One app of the Epic launcher: the texts of its manifest, under the manifest's own names.
struct EpicAppEntry {
    QString AppName;
    QString LaunchExecutable;
    QString LaunchCommand;
    QString InstallLocation;
    QString DisplayName;
    QString CatalogNamespace;
    QString CatalogItemId;
};

/// The apps that the Epic launcher's manifests name.
class EpicManifestIndex {
private:
    BuiltOnce<std::list<EpicAppEntry>, CriticalSection> m_entries;
};
