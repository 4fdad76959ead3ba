#include "find/record/NeutralPc.h"

#include "find/record/UsedParts.h"
#include "recordings/ShellLink.h"

namespace Find {

namespace {

constexpr QLatin1Char backslash('\\');

Recordings::Registry neutralRegistry(const Recordings::Registry& registry, const MapText& map) {
    Recordings::Registry neutral;
    registry.visit([&](Recordings::RegKey::Root root, const QStringList& path, const Recordings::RegistryNode& key) {
        const QStringList neutralPath = map(path.join(backslash)).split(backslash);
        Recordings::RegistryNode& node = neutral.make(root, neutralPath, Recordings::RegistryView::Bits64);
        for (const auto& [folded, value] : key.values()) {
            node.apply(usedValue({value.name, false, value.type, value.data}, map));
        }
    });
    return neutral;
}

QByteArray neutralContents(const Recordings::File& file, const MapText& map) {
    const QByteArray contents = file.contents.read().value_or(QByteArray());
    if (const std::optional<Recordings::ShellLink> link = Recordings::parseShellLink(contents)) {
        return Recordings::renderShellLink(map(link->localPath));
    }
    return usedContents(file.name, contents, map).value_or(QByteArray());
}

Recordings::Drives neutralDrives(const Recordings::Drives& drives, const MapText& map) {
    Recordings::Drives neutral;
    drives.visit([&](const Recordings::DrivePath& path, const Recordings::File& file) {
        const std::optional<Recordings::DrivePath> neutralPath = Recordings::DrivePath::parse(map(path.text()));
        if (!neutralPath) {
            return;
        }
        Recordings::File& copy = neutral.make(*neutralPath, file.kind);
        copy.isHidden = file.isHidden;
        copy.isSystem = file.isSystem;
        if (file.contents.size() > 0) {
            copy.contents = neutralContents(file, map);
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

Recordings::Pc neutralPc(const Recordings::Pc& pc, const NeutralNames& names) {
    const MapText map = [&names](const QString& text) { return names.text(text); };
    Recordings::Pc neutral;
    neutral.registry = neutralRegistry(pc.registry, map);
    neutral.drives = neutralDrives(pc.drives, map);
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

} // namespace Find
