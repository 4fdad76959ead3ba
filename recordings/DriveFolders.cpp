#include "recordings/DriveFolders.h"

#include "recordings/HostFiles.h"
#include "recordings/Utf8Text.h"
#include "recordings/WindowsNames.h"

#include <QHash>

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <tuple>

namespace Recordings {

namespace {

QByteArray canonical(const QByteArray& path) {
    std::error_code error;
    const auto result = std::filesystem::canonical(std::filesystem::u8path(path.constData()), error);
    return error ? QByteArray() : QByteArray::fromStdString(result.u8string());
}

/// Something in a folder, under the name that Windows would know.
struct Child {
    QString folded;
    QString name;
    QByteArray path;
    bool isLink = false;
};

class Reader {
public:
    Reader(Drives& drives, std::vector<Problem>& problems)
        : m_drives(drives)
        , m_problems(problems) {}

    void readDrives(const QByteArray& folder);

private:
    void readFolder(const DrivePath& path, const QByteArray& folder);
    void read(const DrivePath& path, const Child& child);
    quint64 identityOf(const QByteArray& realPath);
    std::vector<Child> childrenOf(const QByteArray& folder);
    void report(const QByteArray& path, const QString& message);

    Drives& m_drives;
    std::vector<Problem>& m_problems;
    QHash<QByteArray, quint64> m_identities; ///< by path, links resolved
    std::vector<QByteArray> m_way;           ///< the folders from the drive's to the one that is read, links resolved
};

void Reader::readDrives(const QByteArray& folder) {
    for (const Child& child : childrenOf(folder)) {
        const std::optional<DrivePath> root = DrivePath::parse(child.name + QLatin1String(":/"));
        if (child.name.size() != 1 || !root || !HostFiles::isFolder(child.path)) {
            report(child.path, QStringLiteral("this is no drive's letter"));
        } else {
            m_drives.make(*root, File::Kind::Folder);
            readFolder(*root, child.path);
        }
    }
}

void Reader::readFolder(const DrivePath& path, const QByteArray& folder) {
    m_way.push_back(canonical(folder));
    for (const Child& child : childrenOf(folder)) {
        read(pathIn(path, child.name), child);
    }
    m_way.pop_back();
}

quint64 Reader::identityOf(const QByteArray& realPath) {
    quint64& identity = m_identities[realPath];
    identity = identity == 0 ? static_cast<quint64>(m_identities.size()) : identity;
    return identity;
}

void Reader::read(const DrivePath& path, const Child& child) {
    const QByteArray realPath =
        child.isLink ? canonical(child.path) : m_way.back() + child.path.mid(child.path.lastIndexOf('/'));
    if (HostFiles::isFolder(child.path)) {
        if (!child.isLink || std::find(m_way.begin(), m_way.end(), realPath) == m_way.end()) {
            m_drives.make(path, File::Kind::Folder).identity = identityOf(realPath);
            readFolder(path, child.path);
        }
        return;
    }
    std::error_code error;
    const auto size = std::filesystem::file_size(std::filesystem::u8path(child.path.constData()), error);
    if (error || !HostFiles::isFile(child.path)) {
        report(child.path, child.isLink ? QStringLiteral("the link leads to no file or folder")
                                        : QStringLiteral("this is neither a file nor a folder"));
        return;
    }
    File& file = m_drives.make(path, File::Kind::File);
    file.identity = identityOf(realPath);
    if (size > 0) {
        file.contents = Contents::ofFile(child.path, static_cast<qint64>(size));
    }
}

/// In the order of NTFS.
std::vector<Child> Reader::childrenOf(const QByteArray& folder) {
    const auto entries = HostFiles::list(folder);
    if (!entries) {
        report(folder, QStringLiteral("the folder cannot be read"));
        return {};
    }
    std::vector<Child> children;
    for (const HostFiles::Entry& entry : *entries) {
        const std::optional<QString> name = decoded(entry.name);
        const QByteArray path = folder + '/' + entry.name;
        if (name && DrivePath::canName(*name)) {
            children.push_back({foldName(*name), *name, path, entry.isLink});
        } else {
            report(path, name ? QStringLiteral("no file of Windows can have this name")
                              : QStringLiteral("the name is not UTF-8"));
        }
    }
    std::sort(children.begin(), children.end(),
              [](const Child& a, const Child& b) { return std::tie(a.folded, a.name) < std::tie(b.folded, b.name); });
    const auto isSame = [this](const Child& a, const Child& b) {
        if (a.folded == b.folded) {
            report(b.path, QStringLiteral("for Windows this is the same name as \"%1\"").arg(a.name));
        }
        return a.folded == b.folded;
    };
    children.erase(std::unique(children.begin(), children.end(), isSame), children.end());
    return children;
}

void Reader::report(const QByteArray& path, const QString& message) {
    m_problems.push_back({QString::fromUtf8(path), 0, message});
}

} // namespace

Drives readDriveFolders(const QByteArray& folder, std::vector<Problem>& problems) {
    Drives drives;
    Reader(drives, problems).readDrives(folder);
    return drives;
}

QByteArray writeDriveFolders(const Drives& drives, const QByteArray& folder) {
    QByteArray fault;
    drives.visit([&](const DrivePath& path, const File& file) {
        const QByteArray name = '/' + (QStringList{path.letter} + path.names).join(QLatin1Char('/')).toUtf8();
        const std::optional<QByteArray> contents = file.contents.read();
        const bool isWritten = file.isFolder() ? HostFiles::makeFolder(folder + name)
                                               : contents && HostFiles::write(folder + name, *contents);
        if (!isWritten && fault.isEmpty()) {
            fault = folder + name;
        }
    });
    return fault;
}

} // namespace Recordings
