#pragma once

#include "catalogue/ShortcutWalk.h"
#include "support/Index.h"

#include <QStringList>

#include <vector>

/// The full paths of all Start-menu shortcuts, with native separators, the user's before those of all users. A Start
/// menu that is missing, or that takes 30 seconds or longer to walk, adds none. Writes no log.
class StartMenuIndex final : public Index<QStringList> {
public:
    explicit StartMenuIndex(const WalkSource& source = {});

    /// The shortcuts with this name (the file's without ".lnk"), by `matchMode` (support/NameTable.h), in index order.
    std::vector<QString> findByName(const QString& name, int matchMode);

private:
    void build(QStringList& entries) override;

    WalkSource m_source;
    NameTable<QString> m_names;
};
