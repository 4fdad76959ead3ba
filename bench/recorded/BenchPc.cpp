#include "BenchPc.h"

#include "platform/Folders.h"
#include "recordings/HostFiles.h"
#include "recordings/Pc.h"
#include "recordings/PcFile.h"
#include "recordings/Recording.h"
#include "recordings/RegValues.h"

#include <QTemporaryDir>

using Recordings::RegistryView;
using Recordings::RegKey;

namespace {

RegKey::Root rootOf(Platform::RootKey root) {
    switch (root) {
    case Platform::RootKey::LocalMachine:
        return RegKey::Root::LocalMachine;
    case Platform::RootKey::ClassesRoot:
        return RegKey::Root::ClassesRoot;
    default:
        return RegKey::Root::CurrentUser;
    }
}

} // namespace

class BenchPc::World {
public:
    QTemporaryDir folder;
    Recordings::Pc pc;
};

BenchPc::BenchPc()
    : m_world(std::make_unique<World>()) {
    qputenv("XDG_DATA_HOME", m_world->folder.filePath(QStringLiteral("data")).toUtf8());
    m_world->pc.shellFolders = {{Platform::csidlStartMenu, QStringLiteral("C:\\Menu")},
                                {Platform::csidlCommonStartMenu, QStringLiteral("D:\\Menu")},
                                {Platform::csidlCommonAppData, QStringLiteral("C:\\ProgramData")}};
}

BenchPc::~BenchPc() {
    qunsetenv(Recordings::environmentVariable);
}

void BenchPc::key(Platform::RootKey root, const QString& path, quint32 view, const Values& values) {
    Recordings::RegistryNode& node = m_world->pc.registry.make(rootOf(root), path.split(QLatin1Char('\\')),
                                                               view == 0 ? RegistryView::Bits64 : RegistryView::Bits32);
    for (const auto& [name, text] : values) {
        node.apply({name, false, Recordings::RegType::string, Recordings::storedText(text)});
    }
}

void BenchPc::file(const QString& path, const QByteArray& contents) {
    const auto place = Recordings::DrivePath::parse(path);
    m_world->pc.drives.make(*place, Recordings::File::Kind::File).contents = contents;
}

void BenchPc::userChoice(const QString& key, const QString& folder) {
    m_world->pc.userLocations.insert(key, folder);
}

QString BenchPc::shellFolder(int csidl) const {
    return m_world->pc.shellFolders.value(csidl);
}

void BenchPc::use() {
    const QByteArray file = m_world->folder.filePath(QStringLiteral("pc.json")).toUtf8();
    if (!Recordings::HostFiles::write(file, Recordings::renderPcFile(m_world->pc))) {
        qFatal("cannot write %s", file.constData());
    }
    qputenv(Recordings::environmentVariable, file);
    m_world->pc = {};
}
