#include "randompcs/World.h"

#include "common/TestPc.h"
#include "find/FindProgram.h"
#include "recordings/ShellLink.h"

class RandomWorld::Planted {
public:
    void plant(const Recordings::Registry& registry);
    void plant(const Recordings::Drives& drives);

    TestPc pc;

private:
    void plant(const TestKey& key, const Recordings::RegistryNode& node);
    void plant(const QString& path, const Recordings::File& file);
};

namespace {

Platform::RootKey rootOf(Recordings::RegKey::Root root) {
    switch (root) {
    case Recordings::RegKey::Root::CurrentUser:
        return Platform::RootKey::CurrentUser;
    case Recordings::RegKey::Root::Users:
        return Platform::RootKey::Users;
    default:
        return Platform::RootKey::LocalMachine;
    }
}

} // namespace

void RandomWorld::Planted::plant(const Recordings::Registry& registry) {
    registry.visit(
        [this](Recordings::RegKey::Root root, const QStringList& path, const Recordings::RegistryNode& node) {
            plant({rootOf(root), path.join('\\')}, node);
            const bool isClass = path.size() > 2 && path.at(1).compare("Classes", Qt::CaseInsensitive) == 0;
            if (isClass && root == Recordings::RegKey::Root::LocalMachine) {
                // Windows has them in both views of HKEY_CLASSES_ROOT, which Wine keeps apart.
                const QStringList in32Bit = path.mid(0, 2) + QStringList{"Wow6432Node"} + path.mid(2);
                plant({rootOf(root), in32Bit.join('\\')}, node);
            }
        });
}

void RandomWorld::Planted::plant(const TestKey& key, const Recordings::RegistryNode& node) {
    pc.key(key);
    for (const auto& [folded, value] : node.values()) {
        pc.value(key, value.name, value.type, value.data);
    }
}

void RandomWorld::Planted::plant(const Recordings::Drives& drives) {
    drives.visit([this](const Recordings::DrivePath& path, const Recordings::File& file) {
        if (!path.isRoot()) {
            plant(path.text(), file);
        }
    });
}

void RandomWorld::Planted::plant(const QString& path, const Recordings::File& file) {
    const QByteArray contents = file.contents.read().value_or(QByteArray());
    const std::optional<Recordings::ShellLink> link = Recordings::parseShellLink(contents);
    if (file.isFolder()) {
        pc.folder(path);
    } else if (link && path.endsWith(".lnk")) {
        pc.shortcut(path, link->localPath);
    } else {
        pc.file(path, contents);
    }
    if (file.isHidden) {
        pc.hide(path);
    }
    if (file.isSystem) {
        pc.makeSystem(path);
    }
}

RandomWorld::RandomWorld()
    : m_planted(std::make_unique<Planted>()) {}

RandomWorld::~RandomWorld() = default;

QMap<QChar, QString> RandomWorld::volumes() const {
    QMap<QChar, QString> volumes;
    for (const QChar letter : {'C', 'D', 'E'}) {
        volumes.insert(letter, m_planted->pc.volume(letter));
    }
    return volumes;
}

QStringList RandomWorld::plant(const Recordings::Pc& pc, FindProgram& program) {
    m_planted->plant(pc.registry);
    m_planted->plant(pc.drives);
    for (auto folder = pc.shellFolders.begin(); folder != pc.shellFolders.end(); ++folder) {
        m_planted->pc.shellFolder(folder.key(), folder.value());
    }
    for (auto choice = pc.userLocations.begin(); choice != pc.userLocations.end(); ++choice) {
        m_planted->pc.userChoice(choice.key(), choice.value());
    }
    for (const QString& name : pc.environment.keys()) {
        program.setVariable(name, pc.environment.value(name));
    }
    return {};
}
