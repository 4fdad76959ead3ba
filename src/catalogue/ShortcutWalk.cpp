#include "catalogue/ShortcutWalk.h"

#include "support/Paths.h"
#include "support/Trace.h"

#include <algorithm>
#include <vector>

// Not by QDir, which takes a shortcut for its target and so opens each one, leaves out those without a target, and
// knows no system attribute.

namespace {

struct Folder {
    QString path;
    QStringList way; ///< the folders that lead to it
};

QString pathIn(const QString& folder, const QString& name) {
    return folder.endsWith(Paths::separator()) ? folder + name : Paths::join(folder, name);
}

bool namesItself(const Platform::FolderEntry& entry) {
    return entry.name == QLatin1String(".") || entry.name == QLatin1String("..");
}

/// Tells the trace what a folder holds, when the folder has been gone through.
class WalkTrace {
public:
    explicit WalkTrace(const QString& folder) { m_walk.path = folder; }

    ~WalkTrace();

    void add(const Platform::FolderEntry& entry) noexcept;

private:
    Q_DISABLE_COPY_MOVE(WalkTrace)

    void keep(const Platform::FolderEntry& entry);

    Trace::Walk m_walk;
    bool m_isWhole = true; ///< a listing that lacks entries would be worse than none
};

void WalkTrace::add(const Platform::FolderEntry& entry) noexcept {
    if (Trace::isOn() && m_isWhole && !namesItself(entry)) {
        m_isWhole = Trace::attempt([&] { keep(entry); });
    }
}

void WalkTrace::keep(const Platform::FolderEntry& entry) {
    ((entry.attributes & Platform::attributeFolder) != 0 ? m_walk.folders : m_walk.files).append(entry.name);
    if ((entry.attributes & Platform::attributeHidden) != 0) {
        m_walk.hidden.append(entry.name);
    }
    if ((entry.attributes & Platform::attributeSystem) != 0) {
        m_walk.system.append(entry.name);
    }
}

WalkTrace::~WalkTrace() {
    if (m_isWhole) {
        Trace::tell([this] { return m_walk; });
    }
}

class ShortcutWalk {
public:
    ShortcutWalk(quint64 limitMs, const WalkSource& source)
        : m_source(source)
        , m_limitMs(limitMs) {}

    /// False when the time ran out.
    bool walk(const QString& root);

    const QStringList& shortcuts() const { return m_shortcuts; }

private:
    bool visit(const Folder& folder);
    void take(const Platform::FolderEntry& entry, const QString& path);
    bool isToBeWalked(const Platform::FolderEntry& entry, const QString& path, const QStringList& way) const;
    bool leadsBack(const QString& link, const QStringList& way) const;

    bool isTimeOver() const { return m_source.clockMs() - m_start >= m_limitMs; }

    const WalkSource& m_source;
    quint64 m_limitMs;
    quint64 m_start = m_source.clockMs();
    std::vector<Folder> m_pending; ///< the next one is the last
    QStringList m_shortcuts;
};

bool ShortcutWalk::walk(const QString& root) {
    m_pending.push_back({root, {}});
    while (!m_pending.empty()) {
        const Folder next = m_pending.back();
        m_pending.pop_back();
        if (!visit(next)) {
            return false;
        }
    }
    return true;
}

bool ShortcutWalk::visit(const Folder& folder) {
    const QStringList way = folder.way + QStringList{folder.path};
    std::vector<Folder> folders;
    WalkTrace trace(folder.path);
    Platform::FolderEntry entry;
    const Platform::ListingHandle listing = m_source.firstEntry(folder.path, entry);
    for (bool isThere = listing != nullptr; isThere; isThere = m_source.nextEntry(listing, entry)) {
        if (isTimeOver()) {
            return false;
        }
        trace.add(entry);
        const QString path = pathIn(folder.path, entry.name);
        take(entry, path);
        if (isToBeWalked(entry, path, way)) {
            folders.push_back({path, way});
        }
    }
    m_pending.insert(m_pending.end(), folders.rbegin(), folders.rend());
    return !isTimeOver(); // as well when the listing's end, or its failure, is what took long
}

void ShortcutWalk::take(const Platform::FolderEntry& entry, const QString& path) {
    if ((entry.attributes & (Platform::attributeHidden | Platform::attributeSystem)) != 0) {
        return;
    }
    const QString trimmed = path.trimmed();
    if (trimmed.endsWith(QLatin1String(".lnk"))) {
        m_shortcuts.append(trimmed);
    }
}

bool ShortcutWalk::isToBeWalked(const Platform::FolderEntry& entry, const QString& path, const QStringList& way) const {
    if ((entry.attributes & Platform::attributeFolder) == 0 || namesItself(entry)) {
        return false;
    }
    return (entry.attributes & Platform::attributeLink) == 0 || !leadsBack(path, way);
}

/// Also true when it can't be told, as such a folder can't be listed either.
bool ShortcutWalk::leadsBack(const QString& link, const QStringList& way) const {
    Platform::FileIdentity target;
    if (!m_source.fileIdentity(link, target)) {
        return true;
    }
    return std::any_of(way.begin(), way.end(), [this, &target](const QString& folder) {
        Platform::FileIdentity identity;
        return m_source.fileIdentity(folder, identity) && identity.volume == target.volume &&
               identity.index == target.index;
    });
}

} // namespace

QStringList shortcutsBelow(const QString& folder, quint64 limitMs, const WalkSource& source) {
    ShortcutWalk walk(limitMs, source);
    const bool isComplete = !folder.isEmpty() && walk.walk(Paths::toNative(folder));
    if (!isComplete && !folder.isEmpty()) {
        Trace::note("%ls took too long to walk, so its shortcuts are left out.", qUtf16Printable(folder));
    }
    return isComplete ? walk.shortcuts() : QStringList();
}
