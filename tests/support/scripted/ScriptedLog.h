#pragma once

#include "support/LogFile.h"

#include "common/QtPrinters.h"
#include "support/scripted/ScriptedSystem.h"

#include <QDir>
#include <QStringList>

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <memory>
#include <vector>

/// What became of one stream. Text is on the disk once it was flushed, and not by closing the stream.
struct StreamRecord {
    QByteArray given;
    QByteArray onDisk;
    bool isClosed = false;
    std::function<void()> whileWriting;

    /// The lines on the disk without their times.
    QStringList lines() const {
        constexpr int timeLength = 24;
        QStringList lines = QString::fromUtf8(onDisk).split('\n', Qt::SkipEmptyParts);
        for (QString& line : lines) {
            line.remove(0, timeLength);
        }
        return lines;
    }
};

class ScriptedStream final : public Platform::TextStream {
public:
    explicit ScriptedStream(std::shared_ptr<StreamRecord> record)
        : m_record(std::move(record)) {}

    ~ScriptedStream() override { m_record->isClosed = true; }

    void write(std::string_view utf8) noexcept override {
        const std::shared_ptr<StreamRecord> record = m_record; // which outlives this object, should that be destroyed
        record->given.append(utf8.data(), static_cast<int>(utf8.size()));
        if (record->whileWriting) {
            record->whileWriting();
        }
    }

    void flush() noexcept override { m_record->onDisk = m_record->given; }

private:
    Q_DISABLE_COPY_MOVE(ScriptedStream)

    std::shared_ptr<StreamRecord> m_record;
};

/// A lock that notes when it is given up.
class NotingLock final : public Platform::FolderLock {
public:
    explicit NotingLock(QStringList& notes)
        : m_notes(notes) {}

    ~NotingLock() override { m_notes.append("unlock"); }

private:
    Q_DISABLE_COPY_MOVE(NotingLock)

    QStringList& m_notes;
};

/// Logs of a system that notes what it is asked for.
class ScriptedLogTest : public ::testing::Test {
protected:
    ScriptedLogTest() {
        system.ownFolderPath = [](int, char16_t* buffer) {
            std::memcpy(buffer, u"C:\\Data", sizeof u"C:\\Data");
            return 0;
        };
        system.createFolder = [this](const QString& path) { return told("create " + path); };
        system.deleteFile = [this](const QString& path) { return told("delete " + named(path)); };
        system.moveFile = [this](const QString& from, const QString& to) {
            return told("move " + named(from) + " to " + named(to)) && canMove;
        };
        system.fileSize = [this](const QString& path) {
            told("size " + named(path));
            return size;
        };
        system.lockFolder = [this](const QString& path) {
            EXPECT_EQ(QDir::toNativeSeparators(path), folder);
            told("lock");
            return std::make_unique<NotingLock>(asked);
        };
        system.openShared = [this](const QString& path, const char* mode) {
            told("open " + named(path) + ' ' + mode);
            return stream();
        };
    }

    bool told(const QString& question) {
        asked.append(question);
        return true;
    }

    QString named(const QString& path) const {
        EXPECT_TRUE(path.startsWith(folder + QDir::separator())) << path.toStdString();
        return path.mid(folder.size() + 1);
    }

    std::unique_ptr<Platform::TextStream> stream() {
        if (!canOpen) {
            return nullptr;
        }
        streams.push_back(std::make_shared<StreamRecord>());
        return std::make_unique<ScriptedStream>(streams.back());
    }

    static LogFileOptions options(LogFileOptions::BannerMode bannerMode) {
        LogFileOptions options;
        options.bannerMode = bannerMode;
        return options;
    }

    const QString folder = QStringList{"C:\\Data", "Veltrane", "Logs"}.join(QDir::separator());
    ScriptedSystem system;
    QStringList asked;
    bool canMove = true;
    bool canOpen = true;
    qint64 size = -1;
    std::vector<std::shared_ptr<StreamRecord>> streams;
    const QString created = "A: =============== LOG CREATED ===============";
    const QString destroyed = "A: ============== LOG DESTROYED ==============";
};
