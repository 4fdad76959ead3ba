#pragma once

#include "recordings/RegistryTree.h"
#include "recordings/RegistryView.h"

#include <functional>
#include <vector>

namespace Recordings {

/// The registry of a PC on paper. Any thread may read it while nobody changes it.
class Registry {
public:
    /// An open key: the places where its contents lie, the first of them winning. HKEY_CLASSES_ROOT has two, the
    /// user's and the machine's. Empty when there is no such key. Borrowed from the registry.
    using Layers = std::vector<const RegistryNode*>;

    void apply(const std::vector<RegKey>& keys);

    /// The key that a program means by `path`, made when it is missing.
    RegistryNode& make(RegKey::Root root, QStringList path, RegistryView view);

    Layers open(RegKey::Root root, const QStringList& path, RegistryView view) const;

    static const RegistryNode::Value* value(const Layers& key, const QString& name);

    /// The names of the sub-keys, in the order in which Windows lists them.
    static std::vector<QString> subKeys(const Layers& key);

    /// Calls `visit` with every key where it is kept, each before those below it and in the order of their names; with
    /// a root only when it has values.
    void
    visit(const std::function<void(RegKey::Root root, const QStringList& path, const RegistryNode& key)>& visit) const;

    friend bool operator==(const Registry& a, const Registry& b) {
        return a.m_machine == b.m_machine && a.m_user == b.m_user && a.m_users == b.m_users;
    }

private:
    RegistryNode& nodeToChange(RegKey::Root root, QStringList& path, RegistryView view);

    RegistryNode m_machine;
    RegistryNode m_user;
    RegistryNode m_users;
};

} // namespace Recordings
