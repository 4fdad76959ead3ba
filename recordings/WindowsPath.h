#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace Recordings {

/// A path as text, by the rules that Qt 5.15 follows on Windows, and Windows itself where Qt asks it. Nothing is looked
/// up: what depends on the process is told by the caller or is not known.
class Path {
public:
    /// `path` with either separator, as a user or another program wrote it.
    explicit Path(const QString& path);

    /// QDir::fromNativeSeparators: with slashes, and without a "\\?\" at its beginning.
    const QString& text() const { return m_text; }

    /// QFileInfo::isRelative: also false where only the drive or only the folder is missing ("/x", "C:x").
    bool isRelative() const;

    /// Whether nothing is missing: "C:/x", "//server/share/x".
    bool isAbsolute() const;

    /// QDir::cleanPath.
    QString cleaned() const;

    /// QFileInfo::absoluteFilePath. A path without a drive is on `currentDrive`; the current folder of a drive is its
    /// root; what is relative is in unknownFolder.
    QString absolute(QChar currentDrive) const;

    /// QFileInfo::path, of a path that QFileInfo::absoluteFilePath gave too.
    static QString folderOf(const QString& path);

    // Of a folder's path:

    /// QDir::path.
    QString asFolder() const;

    /// QDir::absolutePath.
    QString absoluteFolder(QChar currentDrive) const;

    /// QDir::absoluteFilePath.
    QString absoluteFile(const QString& name, QChar currentDrive) const;

    /// QDir::cd of a name but "" and ".": the QDir::path of the folder to enter, if it is there. Empty when it would be
    /// above a root.
    std::optional<QString> entered(const QString& name) const;

    /// The names of a path below its root with "." and ".." worked out, and without the dots and spaces that Windows
    /// drops at the end of a name.
    static QStringList workedOut(const QString& below);

    /// The current folder where nobody knows it: on a network, where no ".." leads out of it, and of a name that no
    /// computer can have.
    static QString unknownFolder() { return QStringLiteral("//<current folder>"); }

private:
    /// Whether "." , ".." and doubled separators are worked out already.
    bool isClean() const;

    int rootLength() const;
    QString full(QChar currentDrive) const;
    QString fullOnNetwork() const;

    QString m_text;
};

/// QDir::toNativeSeparators.
QString withBackslashes(QString path);

} // namespace Recordings
