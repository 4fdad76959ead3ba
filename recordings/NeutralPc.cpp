#include "recordings/NeutralPc.h"

#include "recordings/RegValues.h"
#include "recordings/ShellLink.h"

namespace Recordings {

namespace {

constexpr QLatin1Char backslash('\\');

Registry neutralRegistry(const Registry& registry, const MapText& map) {
    Registry neutral;
    registry.visit([&](RegKey::Root root, const QStringList& path, const RegistryNode& key) {
        const QStringList neutralPath = map(path.join(backslash)).split(backslash, Qt::SkipEmptyParts);
        RegistryNode& node = neutral.make(root, neutralPath, RegistryView::Bits64);
        for (const auto& [folded, value] : key.values()) {
            const std::optional<QString> text = textOf(value.type, value.data);
            node.apply({value.name, false, value.type, text ? storedText(map(*text)) : value.data});
        }
    });
    return neutral;
}

QByteArray neutralContents(const File& file, const MapText& map, const MapContents& mapContents) {
    const QByteArray contents = file.contents.read().value_or(QByteArray());
    if (const std::optional<ShellLink> link = parseShellLink(contents)) {
        return renderShellLink(map(link->localPath));
    }
    return mapContents(file.name, contents, map);
}

Drives neutralDrives(const Drives& drives, const MapText& map, const MapContents& mapContents) {
    Drives neutral;
    drives.visit([&](const DrivePath& path, const File& file) {
        const std::optional<DrivePath> neutralPath = DrivePath::parse(map(path.text()));
        if (!neutralPath) {
            return;
        }
        File& copy = neutral.make(*neutralPath, file.kind);
        copy.isHidden = file.isHidden;
        copy.isSystem = file.isSystem;
        if (file.contents.size() > 0) {
            copy.contents = neutralContents(file, map, mapContents);
        }
    });
    return neutral;
}

template <class Texts>
void mapAll(Texts& texts, const MapText& map) {
    for (QString& text : texts) {
        text = map(text);
    }
}

} // namespace

Pc neutralPc(const Pc& pc, const NeutralNames& names, const MapContents& mapContents) {
    const MapText map = [&names](const QString& text) { return names.text(text); };
    Pc neutral;
    neutral.registry = neutralRegistry(pc.registry, map);
    neutral.drives = neutralDrives(pc.drives, map, mapContents);
    neutral.shellFolders = pc.shellFolders;
    mapAll(neutral.shellFolders, map);
    neutral.volumes = pc.volumes;
    const QStringList variables = pc.environment.keys();
    for (const QString& name : variables) {
        neutral.environment.insert(name, map(pc.environment.value(name)));
    }
    neutral.packages = pc.packages;
    neutral.hostExecutable = map(pc.hostExecutable);
    neutral.hostVersion = pc.hostVersion;
    neutral.userLocations = pc.userLocations;
    mapAll(neutral.userLocations, map);
    neutral.codePage = pc.codePage;
    return neutral;
}

} // namespace Recordings
