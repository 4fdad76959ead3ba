#include "recordings/RegistryTree.h"

#include "recordings/WindowsNames.h"

#include <QStringList>

#include <algorithm>

namespace Recordings {

const RegistryNode* RegistryNode::find(const QStringList& path) const {
    const RegistryNode* node = this;
    for (const QString& name : path) {
        const auto child = node->m_children.find(foldName(name));
        if (child == node->m_children.end()) {
            return nullptr;
        }
        node = child->second.get();
    }
    return node;
}

const RegistryNode::Value* RegistryNode::value(const QString& name) const {
    const auto value = m_values.find(foldName(name));
    return value == m_values.end() ? nullptr : &value->second;
}

RegistryNode& RegistryNode::make(const QStringList& path) {
    RegistryNode* node = this;
    for (const QString& name : path) {
        std::unique_ptr<RegistryNode>& child = node->m_children[foldName(name)];
        if (!child) {
            child = std::make_unique<RegistryNode>(name);
        }
        node = child.get();
    }
    return *node;
}

void RegistryNode::erase(const QStringList& path) {
    if (path.isEmpty()) {
        m_children.clear();
        m_values.clear();
        return;
    }
    RegistryNode* parent = this;
    for (int i = 0; i + 1 < path.size(); ++i) {
        const auto child = parent->m_children.find(foldName(path.at(i)));
        if (child == parent->m_children.end()) {
            return;
        }
        parent = child->second.get();
    }
    parent->m_children.erase(foldName(path.last()));
}

void RegistryNode::apply(const RegValue& value) {
    if (value.isErased) {
        m_values.erase(foldName(value.name));
    } else {
        m_values[foldName(value.name)] = {value.name, value.type, value.data};
    }
}

void RegistryNode::visit(const std::function<void(const QStringList& path, const RegistryNode& key)>& visit) const {
    for (const auto& [folded, child] : m_children) {
        const QStringList path{child->name()};
        visit(path, *child);
        child->visit([&](const QStringList& below, const RegistryNode& key) { visit(path + below, key); });
    }
}

bool operator==(const RegistryNode& a, const RegistryNode& b) {
    return a.m_name == b.m_name && a.m_values == b.m_values &&
           std::equal(a.m_children.begin(), a.m_children.end(), b.m_children.begin(), b.m_children.end(),
                      [](const auto& x, const auto& y) { return *x.second == *y.second; });
}

} // namespace Recordings
