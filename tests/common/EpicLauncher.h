#pragma once

#include "common/TestPc.h"
#include "platform/Registry.h"
#include "support/RegistryKey.h"

#include <QJsonDocument>
#include <QJsonObject>

inline const TestKey epicKey{Platform::RootKey::CurrentUser, "Software\\Epic Games\\EOS", View::view64};

/// Where the tests' launcher keeps its manifests: what the registry names.
inline const QString manifestFolder = "C:\\Epic\\Manifests";

/// What a manifest tells of an app.
struct TestEpicApp {
    QString appName;
    QString displayName;
    QString installLocation;
    QString catalogNamespace = "space";
    QString catalogItemId = "item";
};

inline QByteArray manifestOf(const TestEpicApp& app) {
    return QJsonDocument(QJsonObject{{"AppName", app.appName},
                                     {"DisplayName", app.displayName},
                                     {"InstallLocation", app.installLocation},
                                     {"CatalogNamespace", app.catalogNamespace},
                                     {"CatalogItemId", app.catalogItemId},
                                     {"LaunchExecutable", "game.exe"},
                                     {"LaunchCommand", "-epic"}})
        .toJson();
}

/// Adds a manifest's file and registers its folder.
inline void addManifest(TestPc& pc, const QString& fileName, const QByteArray& contents) {
    pc.value(epicKey, "ModSdkMetadataDir", manifestFolder);
    pc.file(manifestFolder + '\\' + fileName, contents);
}

inline void addEpicApp(TestPc& pc, const QString& fileName, const TestEpicApp& app) {
    addManifest(pc, fileName, manifestOf(app));
}
