#pragma once

#include "recordings/RegistryTree.h"
#include "recordings/RegistryView.h"

#include <vector>

namespace Recordings {

/// The registry of a recorded PC. Nothing changes it once the files are applied, so that any thread may read it.
class RecordedRegistry {
public:
    /// An open key: the places where its contents lie, the first of them winning. HKEY_CLASSES_ROOT has two, the
    /// user's and the machine's. Empty when there is no such key. Borrowed from the registry.
    using Layers = std::vector<const RegistryNode*>;

    void apply(const std::vector<RegKey>& keys);

    Layers open(RegKey::Root root, const QStringList& path, RegistryView view) const;

    static const RegistryNode::Value* value(const Layers& key, const QString& name);

    /// The names of the sub-keys, in the order in which Windows lists them.
    static std::vector<QString> subKeys(const Layers& key);

private:
    RegistryNode& nodeToChange(const RegKey& key, QStringList& path);

    RegistryNode m_machine;
    RegistryNode m_user;
    RegistryNode m_users;
};

} // namespace Recordings
