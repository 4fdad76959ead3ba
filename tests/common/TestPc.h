#pragma once

#include "platform/Registry.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>

/// A registry key of the PC under test.
struct TestKey {
    Platform::RootKey root = Platform::RootKey::LocalMachine;
    QString path;
    quint32 view = 0; ///< a view flag as RegistryKey takes it
};

/// A PC to test with: a test says what is on it and then asks the code under test. In the native build it is a recorded
/// PC in a temporary folder; in the Windows build it is the PC itself, its real registry and files. Whatever a test
/// puts there goes when the TestPc does. One at a time.
///
/// Paths are Windows' own ("C:\\Games\\X"). Drives C, D and E exist.
class TestPc {
public:
    /// False on a PC that nobody has said may be written to. Tests then are not to be run at all.
    static bool mayBeChanged();

    TestPc();
    ~TestPc();

    // Registry
    void key(const TestKey& key);
    void value(const TestKey& key, const QString& name, const QString& text); ///< REG_SZ
    void number(const TestKey& key, const QString& name, quint32 number);     ///< REG_DWORD
    void value(const TestKey& key, const QString& name, quint32 type, const QByteArray& bytes);

    // Files and folders, with the folders on the way
    void file(const QString& path, const QByteArray& contents = {});
    void folder(const QString& path);
    void files(const QString& folder, int count); ///< so many empty ones: "0.txt", "1.txt" …
    void shortcut(const QString& path, const QString& target);
    void link(const QString& path, const QString& folder); ///< a junction or link to a folder
    void removeFile(const QString& path);
    void enlarge(const QString& path, qint64 size); ///< with zeros behind its contents, which take no room on a disk
    void hide(const QString& path);                 ///< gives a file or folder the attribute "hidden"
    void makeSystem(const QString& path);           ///< the attribute "system"

    /// Where the shell has the folder with this CSIDL value: a Start menu's or that of the common application data.
    void shellFolder(int csidl, const QString& path);

    void environment(const QString& name, const QString& value);

    /// The folder that the user chose for the game with this key.
    void userChoice(const QString& key, const QString& folder);

    /// Installs an app package with one application. False where the PC can have none; nothing is installed then.
    bool package(const QString& family, const QString& fullName, const QString& applicationId);

    /// The name of the volume that is mounted as this drive ("\\\\?\\Volume{…}\\").
    QString volume(QChar drive) const;

    /// The most memory that this process has had so far, in bytes.
    static qint64 peakMemory();

    // This library's log files
    static QString logFolder();
    static QString logPath(const QString& logger);
    static void clearLogs();

    /// The log's bytes; empty when there is none.
    static QByteArray log(const QString& logger);

    /// The log's lines as "A: text", without their times and without the banners.
    static QStringList messages(const QString& logger);

private:
    Q_DISABLE_COPY_MOVE(TestPc)

    class World;
    std::unique_ptr<World> m_world;
};

/// How this world spells a path of the file system that is outside the PC under test, a log file's say.
QString ownPath(const QString& folder, const QString& name);
