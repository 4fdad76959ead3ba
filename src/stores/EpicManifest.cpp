#include "stores/EpicManifest.h"

#include "stores/EpicManifestIndex.h"
#include "trace/ForeignFiles.h"

#include <QJsonDocument>
#include <QJsonObject>

std::optional<EpicAppEntry> parseEpicManifest(const QByteArray& json) {
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject()) {
        return std::nullopt;
    }
    const QJsonObject manifest = document.object();
    const auto text = [&manifest](QLatin1String name) { return manifest.value(name).toString(); };
    namespace Members = ForeignFiles::EpicManifest;
    return EpicAppEntry{text(Members::appName),       text(Members::launchExecutable),
                        text(Members::launchCommand), text(Members::installLocation),
                        text(Members::displayName),   text(Members::catalogNamespace),
                        text(Members::catalogItemId)};
}
