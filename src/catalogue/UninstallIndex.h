#pragma once

#include "support/BuiltOnce.h"
#include "support/NameTable.h"

#include <QString>

#include <list>
#include <vector>

/// One program of the Uninstall registry. A value that is missing or not text is empty.
struct UninstallEntry {
    QString keyPath; ///< below its root, in either registry view
    QString displayName;
    QString installLocation;
    QString uninstallString;
};

/// The programs of the Uninstall registry that have a name and tell a place: both views, the machine's and the user's,
/// in that order. A program that both views show is there twice.
///
/// Built at the first question, whichever that is, and unchanged after it; any thread may ask. What is returned points
/// into the index.
class UninstallIndex {
public:
    /// The key whose sub-keys are the programs.
    static QString rootKeyPath();

    const std::list<UninstallEntry>& entries();

    /// The entries with this display name, by `matchMode` (support/NameTable.h), in index order.
    std::vector<const UninstallEntry*> findByName(const QString& displayName, int matchMode);

    /// The entries of exactly this key, letter case included, in index order.
    std::vector<const UninstallEntry*> findByKeyPath(const QString& keyPath);

private:
    struct Catalogue {
        std::list<UninstallEntry> entries;
        NameTable<UninstallEntry> names;
        IdTable<UninstallEntry> keyPaths;
    };

    const Catalogue& catalogue();
    static void build(Catalogue& catalogue);

    BuiltOnce<Catalogue> m_catalogue;
};
