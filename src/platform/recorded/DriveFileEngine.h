#pragma once

#include "platform/recorded/RecordedPc.h"

#include <QtCore/private/qabstractfileengine_p.h>

namespace Recorded {

/// One file or folder of a recorded PC as Qt's file classes see it. It answers as Qt 5.15 does on Windows, with a
/// shortcut (.lnk) counting as its target, but nothing can be written.
class DriveFileEngine : public QAbstractFileEngine {
public:
    /// Keeps `pc` for as long as it lives. `path` must begin with a drive.
    DriveFileEngine(std::shared_ptr<const RecordedPc> pc, const QString& path);

    bool open(QIODevice::OpenMode mode) override;
    bool close() override;
    bool flush() override;
    qint64 size() const override;
    qint64 pos() const override;
    bool seek(qint64 position) override;
    qint64 read(char* data, qint64 length) override;

    bool caseSensitive() const override { return false; }

    bool isRelativePath() const override { return false; }

    void setFileName(const QString& path) override;
    QString fileName(FileName part) const override;
    FileFlags fileFlags(FileFlags wanted) const override;
    QDateTime fileTime(FileTime time) const override;
    QByteArray id() const override;
    QStringList entryList(QDir::Filters filters, const QStringList& names) const override;
    Iterator* beginEntryList(QDir::Filters filters, const QStringList& names) override;

private:
    /// What the file classes speak of: the file itself, or the target of a shortcut.
    struct Subject {
        bool isShortcut = false;
        QString shortcutTarget;
        Recordings::DrivePath path;
        const Recordings::File* file = nullptr;
    };

    const Subject& subject() const;
    bool isInFolder(Recordings::DrivePath path) const;
    QString targetOf(const Recordings::File& shortcut) const;
    QString absoluteName() const;
    QString canonicalName() const;

    std::shared_ptr<const RecordedPc> m_pc;
    QString m_path; ///< with slashes
    Recordings::DrivePath m_parsed;
    mutable std::optional<Subject> m_subject;
    std::optional<QByteArray> m_contents; ///< while it is open
    qint64 m_position = 0;
};

} // namespace Recorded
