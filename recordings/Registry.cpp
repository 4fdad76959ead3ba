#include "recordings/Registry.h"

namespace Recordings {

namespace {

QStringList classesPath(const QStringList& stored) {
    return QStringList{QStringLiteral("Software"), QStringLiteral("Classes")} + stored;
}

} // namespace

void Registry::apply(const std::vector<RegKey>& keys) {
    for (const RegKey& key : keys) {
        QStringList path = key.path.split(QLatin1Char('\\'), Qt::SkipEmptyParts);
        RegistryNode& root = nodeToChange(key.root, path, RegistryView::Bits64);
        if (key.isErased) {
            root.erase(path);
            continue;
        }
        RegistryNode& node = root.make(path);
        for (const RegValue& value : key.values) {
            node.apply(value);
        }
    }
}

RegistryNode& Registry::make(RegKey::Root root, QStringList path, RegistryView view) {
    RegistryNode& hive = nodeToChange(root, path, view);
    return hive.make(path);
}

RegistryNode& Registry::nodeToChange(RegKey::Root root, QStringList& path, RegistryView view) {
    switch (root) {
    case RegKey::Root::LocalMachine:
        path = storedMachinePath(path, view);
        return m_machine;
    case RegKey::Root::CurrentUser:
        path = storedUserPath(path, view);
        return m_user;
    case RegKey::Root::ClassesRoot:
        // Windows writes to the machine's classes, unless the user has a key of that name.
        path = classesPath(storedClassesPath(path, view));
        return m_user.find(path) ? m_user : m_machine;
    case RegKey::Root::Users:
    case RegKey::Root::Other:
        break;
    }
    return m_users;
}

Registry::Layers Registry::open(RegKey::Root root, const QStringList& path, RegistryView view) const {
    Layers layers;
    const auto add = [&layers](const RegistryNode* node) {
        if (node) {
            layers.push_back(node);
        }
    };
    switch (root) {
    case RegKey::Root::LocalMachine:
        add(m_machine.find(storedMachinePath(path, view)));
        break;
    case RegKey::Root::CurrentUser:
        add(m_user.find(storedUserPath(path, view)));
        break;
    case RegKey::Root::ClassesRoot:
        add(m_user.find(classesPath(storedClassesPath(path, view))));
        add(m_machine.find(classesPath(storedClassesPath(path, view))));
        break;
    case RegKey::Root::Users:
        add(m_users.find(path));
        break;
    case RegKey::Root::Other:
        break;
    }
    return layers;
}

const RegistryNode::Value* Registry::value(const Layers& key, const QString& name) {
    for (const RegistryNode* node : key) {
        if (const RegistryNode::Value* value = node->value(name)) {
            return value;
        }
    }
    return nullptr;
}

std::vector<QString> Registry::subKeys(const Layers& key) {
    std::map<QString, QString> names; // by folded name
    for (const RegistryNode* node : key) {
        for (const auto& [folded, child] : node->children()) {
            names.try_emplace(folded, child->name());
        }
    }
    std::vector<QString> list;
    list.reserve(names.size());
    for (auto& [folded, name] : names) {
        list.push_back(std::move(name));
    }
    return list;
}

void Registry::visit(
    const std::function<void(RegKey::Root root, const QStringList& path, const RegistryNode& key)>& visit) const {
    const auto visitHive = [&visit](RegKey::Root root, const RegistryNode& hive) {
        if (!hive.values().empty()) {
            visit(root, {}, hive);
        }
        hive.visit([&](const QStringList& path, const RegistryNode& key) { visit(root, path, key); });
    };
    visitHive(RegKey::Root::CurrentUser, m_user);
    visitHive(RegKey::Root::LocalMachine, m_machine);
    visitHive(RegKey::Root::Users, m_users);
}

} // namespace Recordings
