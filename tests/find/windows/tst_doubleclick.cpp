// The program in a window of its own, as a double click starts it.

#include "FindProgram.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QStandardPaths>
#include <QThread>

#include <windows.h>

namespace {

constexpr int longestMs = 60000;

/// Waits until it is so.
template <class Predicate>
bool waitFor(Predicate isSo) {
    QElapsedTimer timer;
    timer.start();
    while (!isSo() && timer.elapsed() < longestMs) {
        QThread::msleep(50);
    }
    return isSo();
}

/// A process with a hidden console of its own, into which the test types.
class OwnWindow {
public:
    explicit OwnWindow(const QString& program) {
        STARTUPINFOW start = {};
        start.cb = sizeof start;
        start.dwFlags = STARTF_USESHOWWINDOW;
        start.wShowWindow = SW_HIDE;
        std::wstring command = ('"' + QDir::toNativeSeparators(program) + '"').toStdWString();
        m_isStarted = CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, CREATE_NEW_CONSOLE, nullptr,
                                     nullptr, &start, &m_process) != 0;
    }

    ~OwnWindow() {
        if (m_isStarted) {
            TerminateProcess(m_process.hProcess, 99);
            CloseHandle(m_process.hProcess);
            CloseHandle(m_process.hThread);
        }
    }

    bool isStarted() const { return m_isStarted; }

    bool isRunning() const { return WaitForSingleObject(m_process.hProcess, 0) == WAIT_TIMEOUT; }

    int exitStatus() const {
        DWORD status = 0;
        GetExitCodeProcess(m_process.hProcess, &status);
        return static_cast<int>(status);
    }

    /// Types one key. The test leaves its own console for that.
    bool type(WORD key, wchar_t character) const {
        FreeConsole();
        if (AttachConsole(m_process.dwProcessId) == 0) {
            return false;
        }
        HANDLE input = CreateFileW(L"CONIN$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                   OPEN_EXISTING, 0, nullptr);
        INPUT_RECORD records[2] = {};
        for (INPUT_RECORD& record : records) {
            record.EventType = KEY_EVENT;
            record.Event.KeyEvent.bKeyDown = &record == records ? TRUE : FALSE;
            record.Event.KeyEvent.wRepeatCount = 1;
            record.Event.KeyEvent.wVirtualKeyCode = key;
            record.Event.KeyEvent.uChar.UnicodeChar = character;
        }
        DWORD written = 0;
        const bool isTyped = WriteConsoleInputW(input, records, 2, &written) != 0 && written == 2;
        CloseHandle(input);
        FreeConsole();
        return isTyped;
    }

private:
    Q_DISABLE_COPY_MOVE(OwnWindow)

    PROCESS_INFORMATION m_process = {};
    bool m_isStarted = false;
};

QStringList reportsOnDesktop() {
    const QDir desktop(QStandardPaths::writableLocation(QStandardPaths::DesktopLocation));
    return desktop.entryList({"luruludri-pc-*.html"}, QDir::Files);
}

TEST(DoubleClick, EnterMakesTheReportOnTheDesktopAndAKeyClosesTheWindow) {
    const QDir desktop(QStandardPaths::writableLocation(QStandardPaths::DesktopLocation));
    for (const QString& file : reportsOnDesktop()) {
        QFile::remove(desktop.filePath(file));
    }
    OwnWindow window(LURULUDRI_FIND);
    ASSERT_TRUE(window.isStarted());
    QThread::msleep(2000);
    ASSERT_TRUE(window.isRunning()) << "it asks first; exit status " << window.exitStatus();
    EXPECT_EQ(reportsOnDesktop(), QStringList());
    ASSERT_TRUE(window.type(VK_RETURN, L'\r'));
    EXPECT_TRUE(waitFor([] { return reportsOnDesktop().size() == 1; }));
    QThread::msleep(3000);
    EXPECT_TRUE(window.isRunning()) << "the window stays";
    EXPECT_TRUE(waitFor([&] {
        window.type('X', L'x');
        return !window.isRunning();
    }));
    EXPECT_EQ(window.exitStatus(), 0);
    for (const QString& file : reportsOnDesktop()) {
        QFile::remove(desktop.filePath(file));
    }
}

} // namespace
