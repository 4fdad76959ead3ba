#include "support/Trace.h"

#include "common/QtPrinters.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QVariant>

#include <gtest/gtest.h>

#include <filesystem>
#include <system_error>
#include <thread>

namespace {

const QByteArray firstLine = "{\"event\":\"trace\",\"library\":\"Luruludri\",\"version\":1}\n";

QByteArray noteLine(const char* text) {
    return QByteArray("{\"event\":\"note\",\"text\":\"") + text + "\"}\n";
}

/// A file that the environment names as that of the trace, in a process without more rights than its user's.
class TraceFile : public ::testing::Test {
protected:
    ~TraceFile() override { Trace::begin(Trace::Origin()); }

    QString path(const QString& name = "Käfer.trace") const { return m_folder.filePath(name); }

    QString fileWith(const QByteArray& bytes) const {
        QFile file(path());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(bytes), bytes.size());
        return path();
    }

    QByteArray bytes() const {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static void follow(const QString& file) { Trace::begin({nullptr, file, false}); }

private:
    QTemporaryDir m_folder;
};

TEST_F(TraceFile, BeginsWithTheLineOfATrace) {
    follow(path());
    EXPECT_TRUE(Trace::isOn());
    Trace::note("first");
    EXPECT_EQ(bytes(), firstLine + noteLine("first")) << "while it is open";
}

TEST_F(TraceFile, AnEmptyOneBecomesATrace) {
    follow(fileWith(""));
    Trace::note("first");
    EXPECT_EQ(bytes(), firstLine + noteLine("first"));
}

TEST_F(TraceFile, ATraceIsAddedTo) {
    follow(fileWith(firstLine + noteLine("old")));
    Trace::note("first");
    follow(path());
    Trace::note("second");
    EXPECT_EQ(bytes(), firstLine + noteLine("old") + noteLine("first") + noteLine("second"));
}

TEST_F(TraceFile, AnyOtherStaysAsItIs) {
    const QByteArray others[] = {"x",
                                 "\n",
                                 QByteArray("\0", 1),
                                 "[Settings]\nlanguage=de\n",
                                 firstLine.chopped(1),
                                 firstLine.chopped(1) + ' ',
                                 "\n" + firstLine,
                                 "\xEF\xBB\xBF" + firstLine,
                                 noteLine("x"),
                                 QByteArray(firstLine).replace(":1}", ":2}")};
    for (const QByteArray& other : others) {
        follow(fileWith(other));
        EXPECT_FALSE(Trace::isOn()) << other.toStdString();
        Trace::note("lost");
        EXPECT_EQ(bytes(), other);
    }
}

TEST_F(TraceFile, WhatTwoNamesLeadToStaysAsItIs) {
    fileWith("");
    std::error_code error;
    std::filesystem::create_hard_link(std::filesystem::u8path(path().toStdString()),
                                      std::filesystem::u8path(path("other name").toStdString()), error);
    ASSERT_FALSE(error) << error.message();
    for (const QString& name : {path(), path("other name")}) {
        follow(name);
        EXPECT_FALSE(Trace::isOn());
    }
    Trace::note("lost");
    EXPECT_EQ(bytes(), "");
}

TEST_F(TraceFile, CannotBeAFolderOrInOneThatIsMissing) {
    for (const QString& name : {QFileInfo(path()).path(), path("missing/trace"), QString()}) {
        follow(name);
        EXPECT_FALSE(Trace::isOn()) << name.toStdString();
        Trace::note("lost");
    }
}

TEST_F(TraceFile, CanBeRemovedAndMadeAgain) {
    follow(path());
    Trace::note("first");
    EXPECT_TRUE(QFile::remove(path()));
    Trace::note("lost");
    follow(path());
    Trace::note("second");
    EXPECT_EQ(bytes(), firstLine + noteLine("second"));
}

TEST_F(TraceFile, IsNotEvenMadeInAnElevatedProcess) {
    Trace::begin({nullptr, path(), true});
    EXPECT_FALSE(Trace::isOn());
    Trace::note("lost");
    EXPECT_FALSE(QFileInfo::exists(path()));
}

TEST_F(TraceFile, ATraceIsNotAddedToInAnElevatedProcess) {
    Trace::begin({nullptr, fileWith(firstLine), true});
    EXPECT_FALSE(Trace::isOn());
    Trace::note("lost");
    EXPECT_EQ(bytes(), firstLine);
}

TEST_F(TraceFile, TheHostsDeviceGoesFirstInAnElevatedProcessToo) {
    QBuffer device;
    device.open(QIODevice::WriteOnly);
    for (const bool isElevated : {false, true}) {
        Trace::begin({&device, path(), isElevated});
        EXPECT_TRUE(Trace::isOn());
    }
    Trace::note("first");
    EXPECT_EQ(device.data(), noteLine("first"));
    EXPECT_FALSE(QFileInfo::exists(path()));
}

TEST_F(TraceFile, ADeviceThatCannotBeWrittenToIsNone) {
    QBuffer device;
    Trace::begin({&device, path(), false});
    Trace::note("first");
    EXPECT_EQ(bytes(), firstLine + noteLine("first"));
}

TEST_F(TraceFile, WhatIsToldToADeviceThatIsGoneIsLost) {
    {
        QBuffer device;
        device.open(QIODevice::WriteOnly);
        Trace::begin({&device, path(), false});
    }
    Trace::note("lost");
    EXPECT_FALSE(QFileInfo::exists(path()));
}

class ApplicationDevice : public ::testing::Test {
protected:
    ApplicationDevice() { m_device.open(QIODevice::WriteOnly); }

    ~ApplicationDevice() override {
        set(QVariant());
        Trace::begin();
    }

    static void set(const QVariant& value) { QCoreApplication::instance()->setProperty("luruludriTrace", value); }

    QBuffer m_device;
};

TEST_F(ApplicationDevice, IsTakenFromTheApplicationsProperty) {
    set(QVariant::fromValue<QObject*>(&m_device));
    Trace::begin();
    Trace::note("first");
    set(QVariant());
    Trace::begin();
    Trace::note("lost");
    EXPECT_EQ(m_device.data(), noteLine("first"));
}

TEST_F(ApplicationDevice, IsNotLookedForFromAnotherThread) {
    set(QVariant::fromValue<QObject*>(&m_device));
    std::thread([] { Trace::begin(); }).join();
    EXPECT_FALSE(Trace::isOn());
}

TEST_F(ApplicationDevice, IsNothingElse) {
    for (const QVariant& value : {QVariant("C:\\trace"), QVariant(7), QVariant::fromValue<QObject*>(nullptr),
                                  QVariant::fromValue<QObject*>(QCoreApplication::instance())}) {
        set(value);
        Trace::begin();
        EXPECT_FALSE(Trace::isOn());
    }
}

} // namespace
