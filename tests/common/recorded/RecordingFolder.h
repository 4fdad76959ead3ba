#pragma once

#include "platform/recorded/RecordedPc.h"

#include <QByteArray>
#include <QTemporaryDir>

#include <memory>

/// A recorded PC in a temporary folder, made file by file. Paths are below its folder, in UTF-8. The process answers
/// from it from choose() on until the RecordingFolder goes.
class RecordingFolder {
public:
    RecordingFolder();
    ~RecordingFolder();

    /// The process then answers from the recording with the file.
    void file(const QByteArray& path, const QByteArray& contents = {});
    void folder(const QByteArray& path);
    void link(const QByteArray& path, const QByteArray& target);

    /// Adds to registry/test.reg, whose header it writes.
    void registry(const QByteArray& lines);

    void describe(const QByteArray& json) { write("pc.json", json); }

    /// Reads the recording as it is now.
    std::shared_ptr<const Recorded::RecordedPc> choose();

    QByteArray path(const QByteArray& below) const;

private:
    void write(const QByteArray& path, const QByteArray& contents);

    Q_DISABLE_COPY_MOVE(RecordingFolder)

    QTemporaryDir m_folder;
    QByteArray m_registry;
};
