#include "installers/Installation.h"

#include "common/QtPrinters.h"
#include "installers/Running.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QThread>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

constexpr int longestUninstallMs = 30'000;

bool isForWindowsInstaller(const QString& file) {
    return file.endsWith(".msi");
}

/// Runs a command line as it stands: installers have rules of their own for quotes.
void run(const QString& program, const QString& arguments) {
    QProcess process;
    process.setProgram(program);
    process.setNativeArguments(arguments);
    runToItsEnd(process);
    EXPECT_EQ(process.exitCode(), 0) << program.toStdString() << ' ' << arguments.toStdString();
}

void install(const QString& setup, const QString& folder) {
    const QString file = QDir::toNativeSeparators(QDir(LURULUDRI_INSTALLERS).absoluteFilePath(setup));
    if (isForWindowsInstaller(setup)) {
        const QString where = folder.isEmpty() ? QString() : QString(" ARPINSTALLLOCATION=\"%1\"").arg(folder);
        run("msiexec.exe", QString("/i \"%1\" /qn%2").arg(file, where));
    } else {
        run(file, folder.isEmpty() ? QString("/S") : "/S /D=" + folder);
    }
}

/// The uninstaller's path out of its quotes.
QString unquoted(const QString& command) {
    EXPECT_TRUE(command.size() > 2 && command.startsWith('"') && command.endsWith('"')) << command.toStdString();
    return command.mid(1, command.size() - 2);
}

/// What Windows' own list of programs does with the command of Windows Installer, which would ask what to do.
void runWindowsInstaller(const QString& command) {
    EXPECT_TRUE(command.startsWith("MsiExec.exe /", Qt::CaseInsensitive)) << command.toStdString();
    run("msiexec.exe", "/x " + command.mid(command.indexOf('{')) + " /qn");
}

} // namespace

Installation::Installation(const DummyGame& game, const QString& folder)
    : m_game(game)
    , m_folder(folder.isEmpty() ? game.usualFolder : folder)
    , m_registry(game.root + "\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall", game.view) {
    install(game.setup, folder);
    m_isInstalled = QFileInfo(m_folder, game.executable).isFile();
    EXPECT_TRUE(m_isInstalled) << game.name.toStdString();
    EXPECT_TRUE(isRegistered());
}

Installation::~Installation() {
    uninstall();
}

bool Installation::hasShortcut() const {
    return std::any_of(m_game.menus.begin(), m_game.menus.end(), [this](const QString& menu) {
        return QDir(menu).entryList(QDir::Files | QDir::System).contains(m_game.name + ".lnk");
    });
}

void Installation::uninstall() {
    if (!m_isInstalled) {
        return;
    }
    const QString command = m_registry.value(m_game.key + "/UninstallString").toString();
    if (isForWindowsInstaller(m_game.setup)) {
        runWindowsInstaller(command);
    } else {
        run(unquoted(command), "/S");
    }
    m_isInstalled = false;
    EXPECT_TRUE(waitUntilUnregistered());
    EXPECT_FALSE(hasShortcut());
    // Not that it is gone: an empty folder stays if another program happens to look into it.
    EXPECT_TRUE(QDir(m_folder).isEmpty()) << "something is left in " << m_folder.toStdString();
}

bool Installation::isRegistered() const {
    return m_registry.childGroups().contains(m_game.key);
}

bool Installation::waitUntilUnregistered() const {
    const QDeadlineTimer limit(longestUninstallMs);
    while (isRegistered() && !limit.hasExpired()) {
        QThread::msleep(10);
    }
    return !isRegistered();
}
