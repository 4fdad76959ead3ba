#include "BenchPc.h"

#include "platform/Folders.h"
#include "recordings/HostFiles.h"
#include "recordings/PcFile.h"
#include "recordings/Recording.h"
#include "recordings/RegValues.h"

using Recordings::RegistryView;
using Recordings::RegKey;

namespace {

Recordings::RegValue textValue(const char* name, const QString& text) {
    return {QLatin1String(name), false, Recordings::RegType::string, Recordings::storedText(text)};
}

} // namespace

BenchPc::BenchPc() {
    qputenv("XDG_DATA_HOME", m_folder.filePath(QStringLiteral("data")).toUtf8());
    m_pc.shellFolders = {{Platform::csidlStartMenu, QStringLiteral("C:\\Menu")},
                         {Platform::csidlCommonStartMenu, QStringLiteral("D:\\Menu")}};
}

BenchPc::~BenchPc() {
    qunsetenv(Recordings::environmentVariable);
}

void BenchPc::file(const QString& path, const QByteArray& contents) {
    m_pc.drives.make(*Recordings::DrivePath::parse(path), Recordings::File::Kind::File).contents = contents;
}

void BenchPc::program(const QString& key, const QString& displayName, const QString& installLocation) {
    const QString uninstall = QStringLiteral("Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall");
    Recordings::RegistryNode& node = m_pc.registry.make(
        RegKey::Root::LocalMachine, uninstall.split(QLatin1Char('\\')) + QStringList{key}, RegistryView::Bits64);
    node.apply(textValue("DisplayName", displayName));
    node.apply(textValue("InstallLocation", installLocation));
    node.apply(textValue("UninstallString", QStringLiteral("uninstall.exe")));
}

void BenchPc::steam(const QString& executable) {
    const QString command = QStringLiteral("steam\\Shell\\Open\\Command");
    m_pc.registry.make(RegKey::Root::ClassesRoot, command.split(QLatin1Char('\\')), RegistryView::Bits64)
        .apply(textValue("", executable));
}

void BenchPc::use() {
    const QByteArray file = m_folder.filePath(QStringLiteral("pc.json")).toUtf8();
    if (!Recordings::HostFiles::write(file, Recordings::renderPcFile(m_pc))) {
        qFatal("cannot write %s", file.constData());
    }
    qputenv(Recordings::environmentVariable, file);
}
