#include "platform/recorded/DriveFileEngine.h"

#include "platform/recorded/Observer.h"
#include "platform/recorded/PcPaths.h"
#include "recordings/ShellLink.h"
#include "recordings/WindowsPath.h"

#include <QDateTime>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace Recorded {

namespace {

constexpr QLatin1Char slash('/');
constexpr int rootLength = 3; // of "C:/"

bool isExecutable(const QString& path) {
    static constexpr std::array suffixes = {".exe", ".com", ".bat", ".pif", ".cmd"};
    return std::any_of(suffixes.begin(), suffixes.end(), [&path](const char* suffix) {
        return path.endsWith(QLatin1String(suffix), Qt::CaseInsensitive);
    });
}

/// Hands the names in one folder to QDir and QDirIterator, which filter them.
class FolderIterator : public QAbstractFileEngineIterator {
public:
    /// `isRoot`: the folder has no "." and "..", which every other one has before its names.
    FolderIterator(QDir::Filters filters, const QStringList& nameFilters, const QString& folder, bool isRoot,
                   std::vector<QString> names)
        : QAbstractFileEngineIterator(filters, nameFilters)
        , m_folder(folder.endsWith(slash) ? folder : folder + slash)
        , m_names(std::move(names)) {
        if (!isRoot) {
            m_names.insert(m_names.begin(), {QStringLiteral("."), QStringLiteral("..")});
        }
    }

    QString next() override {
        if (!hasNext()) {
            return {};
        }
        ++m_position;
        return m_folder + currentFileName();
    }

    bool hasNext() const override { return m_position < m_names.size(); }

    QString currentFileName() const override { return m_position == 0 ? QString() : m_names[m_position - 1]; }

    QFileInfo currentFileInfo() const override { return QFileInfo(m_folder + currentFileName()); }

private:
    QString m_folder; ///< as the caller wrote it, with slashes
    std::vector<QString> m_names;
    std::size_t m_position = 0; ///< behind the current name; 0 before the first
};

} // namespace

DriveFileEngine::DriveFileEngine(std::shared_ptr<const RecordedPc> pc, const QString& path)
    : m_pc(std::move(pc)) {
    DriveFileEngine::setFileName(path);
}

void DriveFileEngine::setFileName(const QString& path) {
    m_path = Recordings::Path(path).text();
    m_parsed = Recordings::DrivePath::parse(m_path).value_or(Recordings::DrivePath{});
    m_subject.reset();
}

const DriveFileEngine::Subject& DriveFileEngine::subject() const {
    if (m_subject) {
        return *m_subject;
    }
    Subject subject;
    subject.path = m_parsed;
    subject.file = m_pc->drives().find(m_parsed);
    if (isObserved()) {
        observe(QLatin1String("stat ") + m_parsed.text());
    }
    // Qt takes the letter case of ".lnk" exactly, and a missing file for a shortcut without a target.
    if (m_path.endsWith(QLatin1String(".lnk")) && !(subject.file && subject.file->isFolder())) {
        subject.isShortcut = true;
        if (subject.file) {
            subject.shortcutTarget = targetOf(*subject.file);
        }
        subject.path =
            Recordings::DrivePath::parse(subject.shortcutTarget).value_or(Recordings::DrivePath{{}, {}, false});
        subject.file = m_pc->drives().find(subject.path);
    }
    m_subject = std::move(subject);
    return *m_subject;
}

QString DriveFileEngine::targetOf(const Recordings::File& shortcut) const {
    const std::optional<QByteArray> bytes = shortcut.contents.read();
    const std::optional<Recordings::ShellLink> link =
        bytes ? Recordings::parseShellLink(*bytes, m_pc->description().codePage) : std::nullopt;
    return link ? Recordings::targetOf(*link, m_pc->description().environment,
                                       Recordings::Path::folderOf(m_parsed.text()))
                : QString();
}

bool DriveFileEngine::open(QIODevice::OpenMode mode) {
    const Recordings::File* const file = m_pc->drives().find(m_parsed);
    if (isObserved()) {
        observe(QLatin1String("open ") + m_parsed.text());
    }
    const bool isDenied = (file && file->isFolder()) || (mode & QIODevice::WriteOnly);
    if (!isDenied && file) {
        m_contents = file->contents.read();
        m_position = 0;
    }
    if (m_contents) {
        return true;
    }
    // The words of Windows, as they reach logs.
    if (isDenied || file) {
        setError(QFile::OpenError, QStringLiteral("Access is denied."));
    } else if (isInFolder(m_parsed)) {
        setError(QFile::OpenError, QStringLiteral("The system cannot find the file specified."));
    } else {
        setError(QFile::OpenError, QStringLiteral("The system cannot find the path specified."));
    }
    return false;
}

bool DriveFileEngine::isInFolder(Recordings::DrivePath path) const {
    if (!path.isRoot()) {
        path.names.removeLast();
        path.isFolderOnly = true;
    }
    return m_pc->drives().find(path) != nullptr;
}

bool DriveFileEngine::close() {
    const bool wasOpen = m_contents.has_value();
    m_contents.reset();
    return wasOpen;
}

bool DriveFileEngine::flush() {
    return true;
}

qint64 DriveFileEngine::size() const {
    if (m_contents) {
        return m_contents->size();
    }
    const Recordings::File* const file = subject().file;
    return file ? file->contents.size() : 0;
}

qint64 DriveFileEngine::pos() const {
    return m_position;
}

bool DriveFileEngine::seek(qint64 position) {
    m_position = position;
    return true;
}

qint64 DriveFileEngine::read(char* data, qint64 length) {
    const qint64 rest = std::max<qint64>(0, m_contents->size() - m_position);
    const qint64 count = std::min(length, rest);
    std::copy_n(m_contents->constData() + std::min<qint64>(m_position, m_contents->size()), count, data);
    m_position += count;
    return count;
}

QString DriveFileEngine::absoluteName() const {
    return Recordings::Path(m_path).absolute(currentDrive(*m_pc));
}

// Qt follows a shortcut but asks nobody how the names on the way are really spelled.
QString DriveFileEngine::canonicalName() const {
    const Subject& s = subject();
    if (!s.file) {
        return {};
    }
    QString name = s.isShortcut ? Recordings::Path(s.path.text()).absolute(s.path.letter) : absoluteName();
    if (name.size() > rootLength && name.endsWith(slash)) {
        name.chop(1);
    }
    return name;
}

QString DriveFileEngine::fileName(FileName part) const {
    switch (part) {
    case BaseName:
        return m_path.mid(m_path.lastIndexOf(slash) + 1);
    case PathName:
        return Recordings::Path::folderOf(m_path);
    case AbsoluteName:
        return absoluteName();
    case AbsolutePathName:
        return Recordings::Path::folderOf(absoluteName());
    case CanonicalName:
        return canonicalName();
    case CanonicalPathName:
        return subject().file ? Recordings::Path::folderOf(canonicalName()) : QStringLiteral(".");
    case LinkName:
        return subject().shortcutTarget;
    case BundleName:
        return {};
    default:
        return m_path;
    }
}

QAbstractFileEngine::FileFlags DriveFileEngine::fileFlags(FileFlags wanted) const {
    if (wanted & Refresh) {
        m_subject.reset();
    }
    FileFlags flags;
    const Subject& s = subject();
    if (s.isShortcut) {
        flags |= LinkType;
    }
    if (s.file) {
        flags |= ExistsFlag;
        flags |= s.file->isFolder() ? DirectoryType : FileType;
        flags |= FileFlags(ReadOwnerPerm | ReadUserPerm | ReadGroupPerm | ReadOtherPerm);
        if (s.file->isFolder() || isExecutable(s.path.text())) {
            flags |= FileFlags(ExeOwnerPerm | ExeUserPerm | ExeGroupPerm | ExeOtherPerm);
        }
        if (m_path.size() <= rootLength) {
            flags |= RootFlag;
        } else if (s.file->isHidden) {
            flags |= HiddenFlag;
        }
    }
    return flags & wanted;
}

QDateTime DriveFileEngine::fileTime(FileTime /*time*/) const {
    return {}; // which a recording has of no file
}

QByteArray DriveFileEngine::id() const {
    return m_pc->drives().find(m_parsed) ? Recordings::foldedPath(m_parsed).toUtf8() : QByteArray();
}

QStringList DriveFileEngine::entryList(QDir::Filters filters, const QStringList& names) const {
    return QAbstractFileEngine::entryList(filters, names);
}

QAbstractFileEngine::Iterator* DriveFileEngine::beginEntryList(QDir::Filters filters, const QStringList& names) {
    const Subject& s = subject();
    if (!s.file || !s.file->isFolder()) {
        return nullptr;
    }
    if (isObserved()) {
        observe(QLatin1String("list ") + s.path.text());
    }
    const QString folder = s.isShortcut ? s.path.text() : m_path;
    return new FolderIterator(filters, names, folder, s.path.isRoot(), m_pc->drives().list(s.path));
}

} // namespace Recorded
