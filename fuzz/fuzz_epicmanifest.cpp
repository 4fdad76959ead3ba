#include "fuzz/Fuzz.h"
#include "fuzz/LoggingSystem.h"
#include "stores/EpicManifest.h"
#include "stores/EpicManifestIndex.h"
#include "support/NameTable.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <algorithm>

namespace {

bool isSame(const EpicAppEntry& one, const EpicAppEntry& other) {
    const auto texts = [](const EpicAppEntry& entry) {
        return QStringList{entry.AppName,     entry.LaunchExecutable, entry.LaunchCommand, entry.InstallLocation,
                           entry.DisplayName, entry.CatalogNamespace, entry.CatalogItemId};
    };
    return texts(one) == texts(other);
}

void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    Fuzz::require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), "the file is written");
}

bool writeGood(const QTemporaryDir& folder) {
    const QByteArray text = R"({"AppName": "Good", "InstallLocation": "C:\\Good", "DisplayName": "Good game"})";
    write(folder.filePath(QStringLiteral("a.item")), text);
    write(folder.filePath(QStringLiteral("c.item")), text);
    return true;
}

/// Whether a search for the entry's name comes back with it, too.
bool isFound(EpicManifestIndex& index, const EpicAppEntry& entry) {
    const std::vector<EpicAppEntry> found = index.findByName(entry.DisplayName, MatchMode::equals);
    return std::any_of(found.begin(), found.end(), [&](const EpicAppEntry& one) { return isSame(one, entry); });
}

} // namespace

/// Whatever lies between two manifests, both are found, and so is what it names itself.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const QTemporaryDir folder;
    const EpicAppEntry good{QStringLiteral("Good"),      {}, {}, QStringLiteral("C:\\Good"),
                            QStringLiteral("Good game"), {}, {}};
    static const bool areWritten = writeGood(folder);
    Fuzz::require(areWritten, "good manifests");
    const QByteArray bytes = Fuzz::bytesOf(data, size);
    write(folder.filePath(QStringLiteral("b.item")), bytes);

    Fuzz::LoggingSystem pc;
    pc.system.openKey = [](Platform::RootKey, const QString&, quint32) { return Platform::errorSuccess; };
    pc.system.queryValue = [](const QString&, quint32& type, void* buffer, quint32& length) {
        type = Platform::regSz;
        const QString path = folder.path();
        const auto bytesOfPath = static_cast<quint32>(path.size()) * 2;
        Fuzz::require(bytesOfPath <= length, "a short path");
        std::memcpy(buffer, path.utf16(), bytesOfPath);
        length = bytesOfPath;
        return Platform::errorSuccess;
    };
    EpicManifestIndex index;
    Fuzz::require(index.findByName(good.DisplayName, MatchMode::equals).size() >= 2 && isFound(index, good),
                  "good manifests are found");
    const std::optional<EpicAppEntry> entry = parseEpicManifest(bytes);
    if (entry && !(entry->AppName.isEmpty() && entry->InstallLocation.isEmpty())) {
        Fuzz::require(isFound(index, *entry), "what a manifest names is found");
    }
    Fuzz::require(entry || pc.log.contains("  Skipped invalid manifest: b.item\n"), "what is none is named");
    return 0;
}
