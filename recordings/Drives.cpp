#include "recordings/Drives.h"

#include "recordings/WindowsNames.h"

#include <QSet>

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
    File& folder = make(path, File::Kind::Folder);
    const QString foldedFolder = foldedPath(path);
    QSet<QString> listed; // by folded name
    std::vector<QString> inOrder;
    for (const QString& name : names) {
        const QString folded = foldName(name);
        if (listed.contains(folded)) {
            continue;
        }
        listed.insert(folded);
        inOrder.push_back(name);
        File* file = add(foldedFolder, name);
        file = file != nullptr ? file : &m_files[foldedFolder + slash + folded];
        file->name = name;
        file->kind = kind == File::Kind::Folder ? kind : file->kind;
    }
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

void Drives::visit(const Visit& visit) const {
    const QStringList roots = letters();
    for (const QString& root : roots) {
        DrivePath path = rootOf(root.at(0));
        QString folded = foldedRoot(root.at(0));
        this->visit(path, folded, visit);
    }
}

void Drives::visit(DrivePath& path, QString& folded, const Visit& visit) const {
    const File& file = *m_files.constFind(folded);
    visit(path, file);
    const int end = folded.size();
    for (const QString& name : file.names) {
        path.names.append(name);
        folded += slash + foldName(name);
        this->visit(path, folded, visit);
        folded.truncate(end);
        path.names.removeLast();
    }
}

} // namespace Recordings
