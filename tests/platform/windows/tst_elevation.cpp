#include "platform/Process.h"
#include "support/Trace.h"

#include "common/QtPrinters.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <windows.h>

#include <memory>

// Under Wine a process is one that an administrator allowed to change the PC, whose token is linked with the limited
// one of the same user's other processes.

namespace {

struct HandleCloser {
    void operator()(void* handle) const { ::CloseHandle(handle); }
};

using Handle = std::unique_ptr<void, HandleCloser>;

Handle limitedToken() {
    HANDLE own = nullptr;
    if (::OpenProcessToken(::GetCurrentProcess(), TOKEN_ALL_ACCESS, &own) == 0) {
        return nullptr;
    }
    const Handle token(own);
    TOKEN_LINKED_TOKEN linked{};
    DWORD size = 0;
    if (::GetTokenInformation(own, TokenLinkedToken, &linked, sizeof linked, &size) == 0) {
        return nullptr;
    }
    const Handle impersonation(linked.LinkedToken);
    HANDLE primary = nullptr;
    ::DuplicateTokenEx(linked.LinkedToken, TOKEN_ALL_ACCESS, nullptr, SecurityImpersonation, TokenPrimary, &primary);
    return Handle(primary);
}

/// Runs a test of this program in a process with the token; its exit status.
DWORD runTest(const Handle& token, const char* test) {
    QString command = QString("\"%1\" --gtest_also_run_disabled_tests --gtest_filter=%2")
                          .arg(QDir::toNativeSeparators(QCoreApplication::applicationFilePath()), test);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    std::wstring line = command.toStdWString();
    if (::CreateProcessAsUserW(token.get(), nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                               &process) == 0) {
        return ::GetLastError() + 1000;
    }
    const Handle thread(process.hThread);
    const Handle child(process.hProcess);
    DWORD status = 1;
    ::WaitForSingleObject(process.hProcess, 30'000);
    ::GetExitCodeProcess(process.hProcess, &status);
    return status;
}

/// Whether the trace goes by the environment.
bool isEnvironmentFollowed() {
    const QTemporaryDir folder;
    const QString file = folder.filePath("trace");
    qputenv(Trace::environmentVariable, file.toUtf8());
    Trace::begin();
    const bool isOn = Trace::isOn();
    EXPECT_EQ(QFileInfo::exists(file), isOn);
    qunsetenv(Trace::environmentVariable);
    Trace::begin();
    return isOn;
}

TEST(Elevation, AnElevatedProcessDoesNotGoByItsEnvironment) {
    if (!limitedToken()) {
        GTEST_SKIP() << "this test was not started as administrator, or user account control is off";
    }
    EXPECT_TRUE(Platform::isElevated());
    EXPECT_FALSE(isEnvironmentFollowed());
}

TEST(Elevation, ALimitedProcessGoesByItsEnvironment) {
    const Handle token = limitedToken();
    if (!token) {
        GTEST_SKIP() << "this test was not started as administrator, or user account control is off";
    }
    EXPECT_EQ(runTest(token, "Elevation.DISABLED_WithinTheLimitedProcess"), 0U);
}

TEST(Elevation, DISABLED_WithinTheLimitedProcess) {
    EXPECT_FALSE(Platform::isElevated());
    EXPECT_TRUE(isEnvironmentFollowed());
}

} // namespace
