#include "stores/EpicManifest.h"

#include "stores/EpicManifestIndex.h"

#include <QJsonDocument>
#include <QJsonObject>

std::optional<EpicAppEntry> parseEpicManifest(const QByteArray& json) {
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject()) {
        return std::nullopt;
    }
    const QJsonObject manifest = document.object();
    const auto text = [&manifest](const char* name) { return manifest.value(QLatin1String(name)).toString(); };
    return EpicAppEntry{text("AppName"),     text("LaunchExecutable"), text("LaunchCommand"), text("InstallLocation"),
                        text("DisplayName"), text("CatalogNamespace"), text("CatalogItemId")};
}
