#include "recordings/WindowsPath.h"

namespace Recordings {

namespace {

constexpr QLatin1Char slash('/');
constexpr QLatin1Char dot('.');
constexpr QLatin1Char colon(':');

QString withSlashes(const QString& path) {
    QString text = path.startsWith(QLatin1String("\\\\?\\")) ? path.mid(4) : path;
    return text.replace(QLatin1Char('\\'), slash);
}

bool hasDrive(const QString& text) {
    return text.size() >= 2 && text.at(1) == colon;
}

bool isNetwork(const QString& text) {
    return text.startsWith(QLatin1String("//"));
}

QString withUpperDrive(QString text) {
    if (hasDrive(text)) {
        text[0] = text.at(0).toUpper();
    }
    return text;
}

// The end of the folder's name that begins at `from`.
int endOfName(const QString& text, int from) {
    const int end = text.indexOf(slash, from);
    return end < 0 ? text.size() : end;
}

// The length of the drive or share of an absolute path; 0 when it has none.
int driveLength(const QString& text) {
    if (!isNetwork(text)) {
        return hasDrive(text) && text.at(0).isLetter() ? 2 : 0;
    }
    const int server = endOfName(text, 2);
    const int share = endOfName(text, server + 1);
    return share > server + 1 ? share : 0;
}

// A name that a separator follows loses a single dot at its end, the last name of a path all dots and spaces.
QString trimmedName(QString name, bool isLast) {
    if (!isLast) {
        return name.endsWith(dot) && !name.endsWith(QLatin1String("..")) ? name.left(name.size() - 1) : name;
    }
    while (name.endsWith(dot) || name.endsWith(QLatin1Char(' '))) {
        name.chop(1);
    }
    return name;
}

// `root` ends in a slash.
QString joined(const QString& root, const QString& below) {
    const QStringList names = Path::workedOut(below);
    const bool endsInSlash = below.endsWith(slash) && !names.isEmpty();
    // Qt puts a space at the end of a path back after Windows has removed it, so that such a path leads nowhere.
    return root + names.join(slash) + (endsInSlash ? QStringLiteral("/") : QString()) +
           (below.endsWith(QLatin1Char(' ')) ? QStringLiteral(" ") : QString());
}

} // namespace

Path::Path(const QString& path)
    : m_text(withSlashes(path)) {}

bool Path::isRelative() const {
    return !m_text.startsWith(slash) && !hasDrive(m_text);
}

bool Path::isAbsolute() const {
    return isNetwork(m_text) || (hasDrive(m_text) && m_text.at(0).isLetter() && m_text.indexOf(slash) == 2);
}

bool Path::isClean() const {
    const QStringList names = m_text.split(slash);
    for (int i = 0; i < names.size(); ++i) {
        const QString& name = names.at(i);
        const bool isEmptyInside = name.isEmpty() && i > 0 && i + 1 < names.size();
        if (isEmptyInside || name == QLatin1String(".") || name == QLatin1String("..")) {
            return false;
        }
    }
    return true;
}

// To Qt the share of a network path is no part of its root.
int Path::rootLength() const {
    if (isNetwork(m_text)) {
        const int end = endOfName(m_text, 2);
        return end < m_text.size() ? end + 1 : end;
    }
    if (hasDrive(m_text)) {
        return m_text.indexOf(slash) == 2 ? 3 : 2;
    }
    return m_text.startsWith(slash) ? 1 : 0;
}

QString Path::cleaned() const {
    const int root = rootLength();
    QStringList names;
    for (const QString& name : m_text.mid(root).split(slash)) {
        if (name == QLatin1String("..") && !names.isEmpty() && names.last() != name) {
            names.removeLast();
        } else if (!name.isEmpty() && name != QLatin1String(".")) {
            names.append(name);
        }
    }
    QString clean = m_text.left(root) + names.join(slash);
    if (clean.isEmpty() && !m_text.isEmpty()) {
        return QString(dot);
    }
    const bool isDriveRoot = clean.size() == 3 && hasDrive(clean);
    if (clean.size() > 1 && clean.endsWith(slash) && !isDriveRoot) {
        clean.chop(1);
    }
    return clean;
}

QString Path::absolute(QChar currentDrive) const {
    if (m_text.isEmpty()) {
        return {};
    }
    if (isRelative()) {
        return Path(unknownFolder() + slash + m_text).cleaned();
    }
    return withUpperDrive(isAbsolute() && isClean() ? m_text : full(currentDrive));
}

// GetFullPathNameW, and then slashes again.
QString Path::full(QChar currentDrive) const {
    if (isNetwork(m_text)) {
        return fullOnNetwork();
    }
    const QString drive = hasDrive(m_text) ? m_text.left(2) : QString(currentDrive) + colon;
    return joined(drive + slash, m_text.mid(hasDrive(m_text) ? 2 : 0));
}

// To Windows a share is a root, and so is the list of all devices.
QString Path::fullOnNetwork() const {
    if (m_text.startsWith(QLatin1String("//./")) || m_text.startsWith(QLatin1String("//?/"))) {
        const QString path = joined(m_text.left(4), m_text.mid(4));
        return path.at(2) == QLatin1Char('?') ? path.mid(4) : path;
    }
    const int server = endOfName(m_text, 2);
    const int share = endOfName(m_text, server + 1);
    if (share >= m_text.size()) {
        return m_text;
    }
    return joined(m_text.left(share + 1), m_text.mid(share));
}

QString Path::folderOf(const QString& path) {
    const int last = path.lastIndexOf(slash);
    if (last < 0) {
        const QString nothing = path.isEmpty() ? path : QString(dot);
        return hasDrive(path) ? path.left(2) : nothing;
    }
    const bool isRoot = last == 0 || (last == 2 && hasDrive(path));
    return path.left(isRoot ? last + 1 : last);
}

QString Path::asFolder() const {
    if (m_text.isEmpty()) {
        return QString(dot);
    }
    const bool isDriveRoot = m_text.size() == 3 && hasDrive(m_text) && m_text.at(0).isLetter();
    return m_text.size() > 1 && m_text.endsWith(slash) && !isDriveRoot ? m_text.left(m_text.size() - 1) : m_text;
}

QString Path::absoluteFolder(QChar currentDrive) const {
    const Path folder(asFolder());
    const bool isAsWritten = !folder.isRelative() && folder.isClean();
    return isAsWritten ? folder.text() : Path(folder.absolute(currentDrive)).cleaned();
}

QString Path::absoluteFile(const QString& name, QChar currentDrive) const {
    const Path path(name);
    if (path.isAbsolute() || (name.contains(colon) && !path.isRelative())) {
        return name;
    }
    const QString folder = absoluteFolder(currentDrive);
    if (path.text().startsWith(slash)) {
        const int drive = driveLength(folder);
        return drive > 0 ? folder.left(drive) + name : QString();
    }
    const bool needsNoSlash = name.isEmpty() || folder.endsWith(slash);
    return needsNoSlash ? folder + name : folder + slash + name;
}

std::optional<QString> Path::entered(const QString& name) const {
    const QString folder = asFolder();
    if (!Path(name).isRelative()) {
        return Path(Path(name).cleaned()).asFolder();
    }
    const Path path(folder.endsWith(slash) ? folder + name : folder + slash + name);
    if (!name.contains(slash) && name != QLatin1String("..") && folder != dot) {
        return path.asFolder();
    }
    const Path clean(path.cleaned());
    const bool isAboveRoot = !clean.isRelative() && clean.text().split(slash).contains(QLatin1String(".."));
    return isAboveRoot ? std::nullopt : std::make_optional(clean.asFolder());
}

QStringList Path::workedOut(const QString& below) {
    QStringList names;
    const QStringList parts = below.split(slash);
    for (int i = 0; i < parts.size(); ++i) {
        if (parts.at(i) == QLatin1String("..")) {
            if (!names.isEmpty()) {
                names.removeLast();
            }
            continue;
        }
        const QString name = trimmedName(parts.at(i), i + 1 == parts.size());
        if (!name.isEmpty()) {
            names.append(name);
        }
    }
    return names;
}

QString withBackslashes(QString path) {
    return path.replace(slash, QLatin1Char('\\'));
}

} // namespace Recordings
