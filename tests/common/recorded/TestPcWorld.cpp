#include "common/TestPc.h"

#include "platform/Folders.h"
#include "platform/Registry.h"
#include "recordings/PcJson.h"
#include "recordings/Recording.h"
#include "recordings/RegFileWriter.h"
#include "recordings/RegValues.h"
#include "recordings/ShellLink.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtEndian>

#include <sys/resource.h>

/// A recorded PC. The library reads a recording again only when another one is chosen, so that each change gives it
/// another name.
class TestPc::World {
public:
    World() {
        for (const QString drive : {"C", "D", "E"}) {
            QDir().mkpath(realPath(drive + ":"));
            m_pc.volumes.insert(drive.at(0), volume(drive));
        }
        // The version is the one that the test programs have on Windows.
        m_pc.hostExecutable = QCoreApplication::applicationFilePath();
        m_pc.hostVersion = quint64{3} << 48U | quint64{1} << 32U | quint64{4159} << 16U | 65535U;
        qputenv("XDG_DATA_HOME", m_folder.filePath("data").toUtf8());
        describe();
    }

    ~World() { qunsetenv(Recordings::environmentVariable); }

    Recordings::Pc& pc() { return m_pc; }

    Recordings::RegistryNode& key(const TestKey& key) {
        const auto view = key.view != 0 ? Recordings::RegistryView::Bits32 : Recordings::RegistryView::Bits64;
        return m_pc.registry.make(rootOf(key.root), key.path.split('\\', Qt::SkipEmptyParts), view);
    }

    void write(const QString& path, const QByteArray& contents) {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size()) {
            qFatal("cannot write %s", qUtf8Printable(path));
        }
        file.close();
        rename();
    }

    void writeRegistry() {
        QStringList leftOut;
        write(m_folder.filePath("pc/registry/test.reg"), Recordings::renderRegFile(m_pc.registry, leftOut));
    }

    /// Writes pc.json.
    void describe() {
        Recordings::JsonValue json = Recordings::pcJson(m_pc);
        json.items.push_back(m_hidden);
        json.items.push_back(m_system);
        write(m_folder.filePath("pc/pc.json"), Recordings::renderJson(json));
    }

    void hide(const QString& path) { m_hidden.items.push_back(Recordings::JsonValue::string({}, path)); }

    void makeSystem(const QString& path) { m_system.items.push_back(Recordings::JsonValue::string({}, path)); }

    void rename() {
        const QString name = m_folder.filePath(QString::number(++m_names));
        QFile::link(m_folder.filePath("pc"), name);
        qputenv(Recordings::environmentVariable, name.toUtf8());
    }

    static QString volume(const QString& drive) {
        return "\\\\?\\Volume{5D0F3B7A-0000-4C1E-9A6B-00000000000" + drive + "}\\";
    }

    QString realPath(const QString& path) const {
        QString below = path;
        return m_folder.filePath("pc/drives/" + below.remove(1, 1).replace('\\', '/'));
    }

private:
    static Recordings::RegKey::Root rootOf(Platform::RootKey root) {
        switch (root) {
        case Platform::RootKey::CurrentUser:
            return Recordings::RegKey::Root::CurrentUser;
        case Platform::RootKey::ClassesRoot:
            return Recordings::RegKey::Root::ClassesRoot;
        case Platform::RootKey::Users:
            return Recordings::RegKey::Root::Users;
        case Platform::RootKey::LocalMachine:
            break;
        }
        return Recordings::RegKey::Root::LocalMachine;
    }

    QTemporaryDir m_folder;
    Recordings::Pc m_pc; ///< but for its drives, which are files from the beginning
    Recordings::JsonValue m_hidden = Recordings::JsonValue::array("hidden");
    Recordings::JsonValue m_system = Recordings::JsonValue::array("system");
    int m_names = 0;
};

bool TestPc::mayBeChanged() {
    return true; // as it is made for the test
}

TestPc::TestPc()
    : m_world(std::make_unique<World>()) {}

TestPc::~TestPc() = default;

void TestPc::key(const TestKey& key) {
    m_world->key(key);
    m_world->writeRegistry();
}

void TestPc::value(const TestKey& key, const QString& name, const QString& text) {
    value(key, name, Recordings::RegType::string, Recordings::storedText(text));
}

void TestPc::number(const TestKey& key, const QString& name, quint32 number) {
    QByteArray bytes(sizeof number, Qt::Uninitialized);
    qToLittleEndian(number, bytes.data());
    value(key, name, Recordings::RegType::dword, bytes);
}

void TestPc::value(const TestKey& key, const QString& name, quint32 type, const QByteArray& bytes) {
    m_world->key(key).apply({name, false, type, bytes});
    m_world->writeRegistry();
}

void TestPc::file(const QString& path, const QByteArray& contents) {
    m_world->write(m_world->realPath(path), contents);
}

void TestPc::folder(const QString& path) {
    QDir().mkpath(m_world->realPath(path));
    m_world->rename();
}

void TestPc::files(const QString& folder, int count) {
    QDir().mkpath(m_world->realPath(folder));
    for (int i = 0; i < count; ++i) {
        QFile(m_world->realPath(folder) + QString("/%1.txt").arg(i)).open(QIODevice::WriteOnly);
    }
    m_world->rename();
}

void TestPc::shortcut(const QString& path, const QString& target) {
    file(path, Recordings::renderShellLink(target));
}

void TestPc::link(const QString& path, const QString& folder) {
    const QString real = m_world->realPath(path);
    QDir().mkpath(QFileInfo(real).path());
    if (!QFile::link(m_world->realPath(folder), real)) {
        qFatal("cannot link %s", qUtf8Printable(real));
    }
    m_world->rename();
}

void TestPc::removeFile(const QString& path) {
    QFile::remove(m_world->realPath(path));
    m_world->rename();
}

void TestPc::enlarge(const QString& path, qint64 size) {
    QFile::resize(m_world->realPath(path), size);
    m_world->rename();
}

void TestPc::hide(const QString& path) {
    m_world->hide(path);
    m_world->describe();
}

void TestPc::makeSystem(const QString& path) {
    m_world->makeSystem(path);
    m_world->describe();
}

void TestPc::shellFolder(int csidl, const QString& path) {
    m_world->pc().shellFolders.insert(csidl, path);
    m_world->describe();
}

void TestPc::environment(const QString& name, const QString& value) {
    m_world->pc().environment.insert(name, value);
    m_world->describe();
}

void TestPc::userChoice(const QString& key, const QString& folder) {
    m_world->pc().userLocations.insert(key, folder);
    m_world->describe();
}

bool TestPc::package(const QString& family, const QString& fullName, const QString& applicationId) {
    Recordings::Pc& pc = m_world->pc();
    pc.packages = pc.packages.value_or(Recordings::AppPackages());
    pc.packages->push_back({family, fullName, {applicationId}});
    m_world->describe();
    return true;
}

qint64 TestPc::peakMemory() {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss * qint64{1024};
}

QString TestPc::volume(QChar drive) const {
    return World::volume(drive);
}
