#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "recordings/Recording.h"

#include <QDir>
#include <QFile>
#include <QLibrary>
#include <QProcess>
#include <QSettings>

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;

/// Another process that uses the library. It has the settings of who runs it, not those of a recorded PC.
class Host {
public:
    explicit Host(const QString& name) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(Recordings::environmentVariable);
        m_process.setProcessEnvironment(environment);
        m_process.start(LURULUDRI_SECONDHOST, {name});
        EXPECT_TRUE(m_process.waitForStarted()) << m_process.errorString().toStdString();
    }

    ~Host() {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
    }

    void begin(const QByteArray& command) {
        m_process.write(command + '\n');
        m_process.waitForBytesWritten();
    }

    bool isDone() {
        while (!m_process.canReadLine() && m_process.waitForReadyRead()) {
        }
        return m_process.readLine().trimmed() == "done";
    }

private:
    Q_DISABLE_COPY_MOVE(Host)

    QProcess m_process;
};

class TwoHostsTest : public ::testing::Test {
protected:
    TwoHostsTest() { EXPECT_TRUE(QDir().mkpath(pc.logFolder())); }

    void bothDo(const QByteArray& command) {
        a.begin(command);
        b.begin(command);
        EXPECT_TRUE(a.isDone());
        EXPECT_TRUE(b.isDone());
    }

    /// At once, but for Wine, which looks for the end of a file and then writes there, where Windows does both at once.
    void bothWrite(const QByteArray& command) {
        if (QLibrary("kernel32").resolve("wine_get_unix_file_name") == nullptr) {
            bothDo(command);
            return;
        }
        for (Host* const host : {&a, &b}) {
            host->begin(command);
            EXPECT_TRUE(host->isDone());
        }
    }

    /// A log that is due to be rotated, and old ones.
    static void prepare(const QString& log) {
        for (const QString suffix : {"", ".bak", ".ba2", ".ba3", ".ba4"}) {
            QFile file(TestPc::logPath(log) + suffix);
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write("was " + suffix.toLatin1() + '\n');
        }
        ASSERT_TRUE(QFile::resize(TestPc::logPath(log), 10'485'761));
    }

    /// What the log's old files begin with.
    static QStringList oldFiles(const QString& log) {
        QStringList beginnings;
        for (const QString suffix : {".bak", ".ba2", ".ba3", ".ba4", ".ba5"}) {
            QFile file(TestPc::logPath(log) + suffix);
            beginnings.append(file.open(QIODevice::ReadOnly) ? file.readLine().trimmed() : "(missing)");
        }
        return beginnings;
    }

    /// The lines that the two hosts write, sorted.
    static QStringList expectedLines() {
        QStringList lines;
        for (const char host : {'a', 'b'}) {
            for (int line = 0; line < 1'000; ++line) {
                lines.append(QString("A: <%1%2 %3>").arg(host).arg(line).arg(QString(line % 200 * 5, host)));
            }
        }
        lines.sort();
        return lines;
    }

    const TestPc pc;
    Host a{"a"};
    Host b{"b"};
};

TEST_F(TwoHostsTest, WhoOpenOneLogAtOnceRotateItOnceAndLoseNoLine) {
    for (int round = 0; round < 30; ++round) {
        const QString log = "Round" + QString::number(round);
        prepare(log);
        bothDo(log.toLatin1());
        bothWrite("write");
        bothWrite("close");
        EXPECT_THAT(oldFiles(log), ElementsAre("was", "was .bak", "was .ba2", "was .ba3", "was .ba4")) << round;
        QStringList lines = pc.messages(log).filter("<");
        lines.sort();
        EXPECT_TRUE(lines == expectedLines()) << "in round " << round;
        EXPECT_EQ(pc.log(log).count(" A: ============== LOG DESTROYED ==============\r\n"), 2);
    }
}

TEST_F(TwoHostsTest, WhoChooseAtOnceForTheirUserKeepBothChoices) {
    QSettings settings(QSettings::UserScope, "Veltrane", "Quorvan");
    settings.clear();
    settings.sync();
    bothDo("Choices");
    bothDo("choose");
    settings.sync();
    QStringList choices;
    for (const QString& key : settings.allKeys()) {
        choices.append(key + ' ' + settings.value(key).toString());
    }
    QStringList expected;
    for (const QString host : {"a", "b"}) {
        for (int game = 0; game < 8; ++game) {
            expected.append(QString("UserProvidedLocations/%1%2 D:\\%1%2").arg(host).arg(game));
        }
    }
    EXPECT_EQ(choices, expected);
    settings.clear();
}

} // namespace
