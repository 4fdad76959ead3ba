#include "BenchPc.h"

#include "platform/Recording.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

void write(const QString& path, const QByteArray& contents) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size()) {
        qFatal("cannot write %s", qUtf8Printable(path));
    }
}

/// As a .reg file quotes it.
QString quoted(QString text) {
    text.replace(QLatin1Char('\\'), QLatin1String("\\\\")).replace(QLatin1Char('"'), QLatin1String("\\\""));
    return QLatin1Char('"') + text + QLatin1Char('"');
}

} // namespace

BenchPc::BenchPc() {
    qputenv("XDG_DATA_HOME", m_folder.filePath(QStringLiteral("data")).toUtf8());
    write(m_folder.filePath(QStringLiteral("pc.json")),
          R"({"shellFolders": {"startMenu": "C:\\Menu", "commonStartMenu": "D:\\Menu"}})");
}

BenchPc::~BenchPc() {
    qunsetenv(Recordings::environmentVariable);
}

void BenchPc::file(const QString& path, const QByteArray& contents) {
    QString below = path;
    below.remove(1, 1).replace(QLatin1Char('\\'), QLatin1Char('/'));
    write(m_folder.filePath(QLatin1String("drives/") + below), contents);
}

void BenchPc::program(const QString& key, const QString& displayName, const QString& installLocation) {
    m_registry += QLatin1String("[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\") +
                  key + QLatin1String("]\n\"DisplayName\"=") + quoted(displayName) +
                  QLatin1String("\n\"InstallLocation\"=") + quoted(installLocation) +
                  QLatin1String("\n\"UninstallString\"=\"uninstall.exe\"\n\n");
}

void BenchPc::steam(const QString& executable) {
    m_registry += QLatin1String("[HKEY_CLASSES_ROOT\\steam\\Shell\\Open\\Command]\n@=") + quoted(executable) +
                  QLatin1String("\n\n");
}

void BenchPc::use() {
    write(m_folder.filePath(QStringLiteral("registry/bench.reg")),
          "Windows Registry Editor Version 5.00\n\n" + m_registry.toUtf8());
    qputenv(Recordings::environmentVariable, m_folder.path().toUtf8());
}
