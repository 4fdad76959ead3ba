#include "find/record/InstallFolders.h"

#include "find/pc/AnsweringPc.h"
#include "find/record/Probe.h"
#include "find/terminal/Progress.h"

#include <QSet>

#include <algorithm>
#include <iterator>
#include <optional>
#include <vector>

namespace Find {

namespace {

const QLatin1String suffixes[] = {QLatin1String(".exe"), QLatin1String(".com"), QLatin1String(".bat"),
                                  QLatin1String(".cmd")};

class ExecutableWalk {
public:
    ExecutableWalk(Recordings::Drives& drives, Progress& progress)
        : m_drives(drives)
        , m_progress(progress) {}

    void walk(const Recordings::DrivePath& folder, bool isDeep);

private:
    void visit(const Recordings::DrivePath& folder, bool isDeep);

    Recordings::Drives& m_drives;
    Progress& m_progress;
    std::vector<Recordings::DrivePath> m_pending;
    int m_visited = 0;
};

void ExecutableWalk::walk(const Recordings::DrivePath& folder, bool isDeep) {
    m_pending.push_back(folder);
    while (!m_pending.empty()) {
        const Recordings::DrivePath next = m_pending.back();
        m_pending.pop_back();
        visit(next, isDeep);
    }
}

void ExecutableWalk::visit(const Recordings::DrivePath& folder, bool isDeep) {
    m_progress.step(++m_visited, 0, folder.text());
    QStringList executables;
    for (const FolderEntry& entry : listFolder(folder.text())) {
        const Recordings::DrivePath path = pathIn(folder, entry.name);
        if (isDeep && entry.isFolder && !entry.isLink) {
            m_pending.push_back(path);
        }
        if (!entry.isFolder && isExecutableName(entry.name)) {
            executables.append(entry.name);
        }
    }
    if (!executables.isEmpty()) {
        m_drives.list(folder, executables, Recordings::File::Kind::File);
    }
}

/// Whether the folded `path` is one of the folders, or below one.
bool isWithin(const QString& path, const QSet<QString>& folders) {
    int end = path.size();
    while (end > 0 && !folders.contains(path.left(end))) {
        end = path.lastIndexOf(QLatin1Char('/'), end - 1);
    }
    return end > 0;
}

} // namespace

bool isExecutableName(const QString& name) {
    return std::any_of(std::begin(suffixes), std::end(suffixes),
                       [&](QLatin1String suffix) { return name.endsWith(suffix, Qt::CaseInsensitive); });
}

void InstallFolders::add(const TraceEvent& event) {
    const auto* const exists = std::get_if<Trace::Exists>(&event);
    if (exists == nullptr) {
        return;
    }
    const QString path = exists->path;
    const QString folder = folderOfProbe(path).value_or(QString()).trimmed(); // as a finder of the game may trim it
    std::optional<Recordings::DrivePath> parsed = Recordings::DrivePath::parse(folder.isEmpty() ? path : folder);
    if (!folder.isEmpty() && !parsed && isSeparator(folder.at(0))) {
        m_networkFolders.append(folder);
    }
    if (!parsed || !parsed->isValid) {
        return;
    }
    if (folder.isEmpty()) {
        if (parsed->isRoot() || !exists->found || !isExecutableName(path)) {
            return;
        }
        parsed->names.removeLast();
    }
    m_folders.emplace(foldedPath(*parsed), *parsed);
}

void InstallFolders::listExecutables(const GeneralFolders& general, Recordings::Drives& drives,
                                     Progress& progress) const {
    ExecutableWalk walk(drives, progress);
    QSet<QString> walked; // those with all that is below them
    for (const auto& [folded, folder] : m_folders) {
        if (isWithin(folded, walked)) {
            continue;
        }
        const bool isDeep = !general.contains(folder);
        walk.walk(folder, isDeep);
        if (isDeep) {
            walked.insert(folded);
        }
    }
}

} // namespace Find
