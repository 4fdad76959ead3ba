#include "common/TestPc.h"

#include "find/record/ShellLinkWriter.h"
#include "platform/Folders.h"
#include "platform/Recording.h"
#include "platform/Registry.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QTemporaryDir>
#include <QTextStream>

#include <vector>

/// A recorded PC. The library reads a recording again only when another one is chosen, so each change of the registry
/// makes a new one; the drives are one folder that all of them share.
class TestPc::World {
public:
    World() {
        QJsonObject volumes;
        for (const QString drive : {"C", "D", "E"}) {
            QDir().mkpath(m_folder.filePath("drives/" + drive));
            volumes.insert(drive, volume(drive));
        }
        m_description.insert("volumes", volumes);
        qputenv("XDG_DATA_HOME", m_folder.filePath("data").toUtf8());
        record();
    }

    ~World() { qunsetenv(Recordings::environmentVariable); }

    void addToRegistry(const TestKey& key, const QString& line) {
        m_registry += '[' + nameOf(key) + "]\r\n" + line + "\r\n";
        record();
    }

    /// Adds to an object of pc.json.
    void describe(const QString& object, const QString& name, const QString& value) {
        QJsonObject members = m_description.value(object).toObject();
        members.insert(name, value);
        m_description.insert(object, members);
        record();
    }

    /// Adds to a list of pc.json.
    void describe(const QString& list, const QString& value) {
        QJsonArray items = m_description.value(list).toArray();
        items.append(value);
        m_description.insert(list, items);
        record();
    }

    static QString volume(const QString& drive) {
        return "\\\\?\\Volume{5D0F3B7A-0000-4C1E-9A6B-00000000000" + drive + "}\\";
    }

    QString realPath(const QString& path) const {
        QString below = path;
        return m_folder.filePath("drives/" + below.remove(1, 1).replace('\\', '/'));
    }

private:
    static QString nameOf(const TestKey& key) {
        switch (key.root) {
        case Platform::RootKey::CurrentUser:
            return "HKEY_CURRENT_USER\\" + key.path;
        case Platform::RootKey::ClassesRoot:
            return "HKEY_CLASSES_ROOT\\" + key.path;
        case Platform::RootKey::Users:
            return "HKEY_USERS\\" + key.path;
        case Platform::RootKey::LocalMachine:
            break;
        }
        const QString software = "Software\\";
        if (key.view != 0 && key.path.startsWith(software, Qt::CaseInsensitive)) {
            return "HKEY_LOCAL_MACHINE\\Software\\Wow6432Node\\" + key.path.mid(software.size());
        }
        return "HKEY_LOCAL_MACHINE\\" + key.path;
    }

    void record() {
        const QString recording = m_folder.filePath(QString::number(++m_recordings));
        QDir().mkpath(recording + "/registry");
        QFile::link(m_folder.filePath("drives"), recording + "/drives");
        QFile file(recording + "/registry/test.reg");
        if (!file.open(QIODevice::WriteOnly)) {
            qFatal("cannot write the recorded PC");
        }
        QTextStream stream(&file);
        stream.setCodec("UTF-16LE");
        stream.setGenerateByteOrderMark(true);
        stream << "Windows Registry Editor Version 5.00\r\n\r\n" << m_registry;
        stream.flush();
        writeDescription(recording + "/pc.json");
        qputenv(Recordings::environmentVariable, recording.toUtf8());
    }

    /// The rest of the PC. The version is the one that the test programs have on Windows.
    void writeDescription(const QString& path) const {
        QJsonObject description = m_description;
        const QJsonObject host{{"executable", QCoreApplication::applicationFilePath()}, {"version", "3.1.4159.65535"}};
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly)) {
            qFatal("cannot write the recorded PC");
        }
        description.insert("host", host);
        file.write(QJsonDocument(description).toJson());
    }

    QTemporaryDir m_folder;
    QString m_registry;
    QJsonObject m_description;
    int m_recordings = 0;
};

namespace {

QString quoted(QString text) {
    text.replace('\\', "\\\\").replace('"', "\\\"");
    return '"' + text + '"';
}

QString nameInFile(const QString& name) {
    return name.isEmpty() ? QString('@') : quoted(name);
}

} // namespace

TestPc::TestPc()
    : m_world(std::make_unique<World>()) {}

TestPc::~TestPc() = default;

void TestPc::key(const TestKey& key) {
    m_world->addToRegistry(key, {});
}

void TestPc::value(const TestKey& key, const QString& name, const QString& text) {
    m_world->addToRegistry(key, nameInFile(name) + '=' + quoted(text));
}

void TestPc::number(const TestKey& key, const QString& name, quint32 number) {
    m_world->addToRegistry(key, nameInFile(name) + "=dword:" + QString::asprintf("%08x", number));
}

void TestPc::value(const TestKey& key, const QString& name, quint32 type, const QByteArray& bytes) {
    m_world->addToRegistry(key, nameInFile(name) + "=hex(" + QString::number(type, 16) +
                                    "):" + QString::fromLatin1(bytes.toHex(',')));
}

void TestPc::file(const QString& path, const QByteArray& contents) {
    const QString real = m_world->realPath(path);
    QDir().mkpath(QFileInfo(real).path());
    QFile file(real);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size()) {
        qFatal("cannot write %s", qUtf8Printable(real));
    }
}

void TestPc::folder(const QString& path) {
    QDir().mkpath(m_world->realPath(path));
}

void TestPc::shortcut(const QString& path, const QString& target) {
    file(path, Host::shellLinkTo(target));
}

void TestPc::link(const QString& path, const QString& folder) {
    const QString real = m_world->realPath(path);
    QDir().mkpath(QFileInfo(real).path());
    if (!QFile::link(m_world->realPath(folder), real)) {
        qFatal("cannot link %s", qUtf8Printable(real));
    }
}

void TestPc::removeFile(const QString& path) {
    QFile::remove(m_world->realPath(path));
}

void TestPc::hide(const QString& path) {
    m_world->describe("hidden", path);
}

void TestPc::makeSystem(const QString& path) {
    m_world->describe("system", path);
}

void TestPc::shellFolder(int csidl, const QString& path) {
    const QMap<int, QString> names{{Platform::csidlStartMenu, "startMenu"},
                                   {Platform::csidlCommonStartMenu, "commonStartMenu"},
                                   {Platform::csidlCommonAppData, "commonAppData"}};
    m_world->describe("shellFolders", names[csidl], path);
}

void TestPc::environment(const QString& name, const QString& value) {
    m_world->describe("environment", name, value);
}

QString TestPc::volume(QChar drive) const {
    return World::volume(drive);
}
