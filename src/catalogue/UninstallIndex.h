#pragma once

#include "support/Index.h"

#include <QString>

#include <list>
#include <vector>

class Logger;

/// One program of the Uninstall registry. A value that is missing or not text is empty.
struct UninstallEntry {
    QString keyPath; ///< below its root, in either registry view
    QString displayName;
    QString installLocation;
    QString uninstallString;
};

/// The programs of the Uninstall registry that have a name and tell a place: both views, the machine's and the user's,
/// in that order. A program that both views show is there twice.
class UninstallIndex final : public Index<std::list<UninstallEntry>> {
public:
    UninstallIndex();

    /// The key whose sub-keys are the programs.
    static QString rootKeyPath();

    /// The entries with this display name, by `matchMode` (support/NameTable.h), in index order.
    std::vector<UninstallEntry> findByName(const QString& displayName, int matchMode);

    /// The entries of exactly this key, letter case included, in index order.
    std::vector<UninstallEntry> findByKeyPath(const QString& keyPath);

private:
    void build(std::list<UninstallEntry>& entries) override;
    void read(quint32 hive, quint32 view, std::list<UninstallEntry>& entries, Logger& logger);

    NameTable<UninstallEntry> m_names;
    IdTable<UninstallEntry> m_keyPaths;
};
