#include "recordings/Drives.h"

#include "recordings/WindowsNames.h"

#include <QSet>

#include <algorithm>

namespace Recordings {

namespace {

constexpr QLatin1Char slash('/');

QString foldedRoot(QChar letter) {
    return QString(letter.toUpper()) + QLatin1Char(':');
}

} // namespace

QString foldedPath(const DrivePath& path) {
    return foldName((QStringList{foldedRoot(path.letter)} + path.names).join(slash));
}

DrivePath pathIn(const DrivePath& folder, const QString& name) {
    DrivePath path = folder;
    path.names.append(name);
    path.isFolderOnly = false;
    return path;
}

DrivePath rootOf(QChar letter) {
    DrivePath path;
    path.letter = letter.toUpper();
    return path;
}

const File* Drives::find(const DrivePath& path) const {
    const auto found = path.isValid ? m_files.constFind(foldedPath(path)) : m_files.constEnd();
    const bool isThere = found != m_files.constEnd() && (found->isFolder() || !path.isFolderOnly);
    return isThere ? &*found : nullptr;
}

File* Drives::find(const DrivePath& path) {
    const auto found = m_files.find(foldedPath(path));
    return found != m_files.end() ? &*found : nullptr;
}

File& Drives::make(const DrivePath& path, File::Kind kind) {
    const QString folded = foldedPath(path);
    auto file = m_files.find(folded);
    if (file == m_files.end()) {
        if (path.isRoot()) {
            m_files[folded].name = path.letter.toUpper();
        } else {
            DrivePath folder = path;
            folder.names.removeLast();
            make(folder, File::Kind::Folder);
            add(folded.left(folded.lastIndexOf(slash)), path.names.last());
        }
        file = m_files.find(folded);
    }
    if (kind == File::Kind::Folder || path.isRoot()) {
        file->kind = File::Kind::Folder;
    }
    return *file;
}

File* Drives::add(const QString& foldedFolder, const QString& name) {
    const QString folded = foldedFolder + slash + foldName(name);
    if (m_files.contains(folded)) {
        return nullptr;
    }
    m_files.find(foldedFolder)->names.push_back(name);
    const auto file = m_files.insert(folded, File());
    file->name = name;
    return &*file;
}

void Drives::list(const DrivePath& path, const QStringList& names, File::Kind kind) {
    QSet<QString> listed; // by folded name
    std::vector<QString> inOrder;
    for (const QString& name : names) {
        if (!listed.contains(foldName(name))) {
            listed.insert(foldName(name));
            inOrder.push_back(name);
            make(pathIn(path, name), kind).name = name;
        }
    }
    File& folder = make(path, File::Kind::Folder);
    for (const QString& name : folder.names) {
        if (!listed.contains(foldName(name))) {
            inOrder.push_back(name);
        }
    }
    folder.names = std::move(inOrder);
}

std::vector<QString> Drives::list(const DrivePath& path) const {
    const File* const folder = find(path);
    return folder ? folder->names : std::vector<QString>();
}

QStringList Drives::letters() const {
    QStringList letters;
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        if (m_files.contains(foldedRoot(QLatin1Char(letter)))) {
            letters.append(QString(QLatin1Char(letter)));
        }
    }
    return letters;
}

void Drives::visit(const std::function<void(const DrivePath& path, const File& file)>& visit) const {
    struct Pending {
        DrivePath path;
        QString folded;
    };

    std::vector<Pending> pending;
    const QStringList roots = letters();
    std::for_each(roots.rbegin(), roots.rend(), [&](const QString& root) {
        pending.push_back({rootOf(root.at(0)), foldedRoot(root.at(0))});
    });
    while (!pending.empty()) {
        const Pending next = std::move(pending.back());
        pending.pop_back();
        const File& file = *m_files.constFind(next.folded);
        visit(next.path, file);
        for (auto name = file.names.rbegin(); name != file.names.rend(); ++name) {
            pending.push_back({pathIn(next.path, *name), next.folded + slash + foldName(*name)});
        }
    }
}

} // namespace Recordings
