#pragma once

#include "recordings/RegFile.h"

#include <functional>
#include <map>
#include <memory>

namespace Recordings {

/// A key of a recorded registry with its values and all that is below it. Names are found ignoring case and keep the
/// spelling in which they came first.
class RegistryNode {
public:
    struct Value {
        QString name; ///< as it was spelled last
        quint32 type = 0;
        QByteArray data;

        friend bool operator==(const Value& a, const Value& b) {
            return a.name == b.name && a.type == b.type && a.data == b.data;
        }
    };

    using Values = std::map<QString, Value>; // by folded name

    using Children = std::map<QString, std::unique_ptr<RegistryNode>>; // by folded name

    explicit RegistryNode(QString name = {})
        : m_name(std::move(name)) {}

    const QString& name() const { return m_name; }

    const Children& children() const { return m_children; }

    const Values& values() const { return m_values; }

    /// The key at `path`, names below this key; null when there is none.
    const RegistryNode* find(const QStringList& path) const;

    /// Null when there is none. The default value has the empty name.
    const Value* value(const QString& name) const;

    /// The key at `path`, made when it is missing.
    RegistryNode& make(const QStringList& path);

    /// Removes the key at `path` and all that is below it. The root itself stays, emptied.
    void erase(const QStringList& path);

    void apply(const RegValue& value);

    /// Calls `visit` with every key below this one and its path, each before those below it.
    void visit(const std::function<void(const QStringList& path, const RegistryNode& key)>& visit) const;

    friend bool operator==(const RegistryNode& a, const RegistryNode& b);

private:
    QString m_name;
    Children m_children;
    Values m_values;
};

} // namespace Recordings
