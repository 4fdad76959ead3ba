#include "recordings/OddPc.h"

#include "recordings/RegValues.h"
#include "recordings/ShellLink.h"

#include <initializer_list>

namespace OddPc {

namespace {

using Recordings::RegistryNode;
using Recordings::RegistryView;
using Root = Recordings::RegKey::Root;

Recordings::DrivePath path(const QString& text) {
    return *Recordings::DrivePath::parse(text);
}

void addText(RegistryNode& key, const QString& name, const QString& text) {
    key.apply({name, false, Recordings::RegType::string, Recordings::storedText(text)});
}

void addRegistry(Recordings::Registry& registry, bool isForFiles) {
    RegistryNode& key = registry.make(Root::LocalMachine, {"Software", "Käfer \"x\"", "競走"}, RegistryView::Bits32);
    addText(key, "", "D:\\Spiele\\\"Käfer\"");
    addText(key, "a\\b\"c", "x");
    addText(key, "lines", "one\ntwo\r\nthree\t\x01");
    addText(key, "lone", QString(QChar(0xD800)));
    addText(key, "null", QString("a") + QChar(u'\0') + "b");
    key.apply({"no end", false, 1, "a"});
    key.apply({"nothing", false, 1, {}});
    key.apply({"number", false, 4, QByteArray("\x01\x02\x03\xFF", 4)});
    key.apply({"short number", false, 4, "x"});
    key.apply({"bytes", false, 3, QByteArray(100, '\xAB')});
    key.apply({"no bytes", false, 3, {}});
    key.apply({"odd type", false, 0xFFFFFFFF, "y"});
    registry.make(Root::CurrentUser, {"Software", "Empty"}, RegistryView::Bits64);
    registry.make(Root::CurrentUser, {"Software", "[x]", "-y"}, RegistryView::Bits64);
    registry.make(Root::ClassesRoot, {"steam", "Shell"}, RegistryView::Bits64);
    registry.make(Root::Users, {"S-1-5"}, RegistryView::Bits64);
    if (!isForFiles) {
        addText(registry.make(Root::Users, {"line\nbreak"}, RegistryView::Bits64), "line\nbreak", "x");
    }
}

void addDrives(Recordings::Drives& drives, bool isForFiles) {
    using Kind = Recordings::File::Kind;
    drives.make(path("E:/"), Kind::Folder);
    drives.make(path("C:/Games/Käfer/käfer.exe"), Kind::File);
    drives.make(path("C:/Games/a'b & c"), Kind::Folder).isHidden = true;
    drives.make(path("C:/Games/text.vdf"), Kind::File).contents = QByteArray("\"path\"\t\"D:\\\\x\"\r\nö\n");
    drives.make(path("C:/Games/bytes.dat"), Kind::File).contents = QByteArray("\xFF\0\x80", 3);
    drives.make(path("C:/Games/mark.json"), Kind::File).contents = QByteArray("\xEF\xBB\xBF{}");
    drives.make(path("C:/Games/Aal.lnk"), Kind::File).contents = Recordings::renderShellLink("D:\\競走\\x.exe");
    drives.make(path("C:/Games/more.lnk"), Kind::File).contents = Recordings::renderShellLink("D:\\x.exe") + "more";
    Recordings::File& file = drives.make(path("C:/Games/競走.txt"), Kind::File);
    file.isSystem = true;
    file.isHidden = true;
    if (!isForFiles) {
        drives.make(path("C:/z"), Kind::File);
        drives.make(path("C:/a"), Kind::File);
        drives.make(path(QString("C:/lone ") + QChar(0xDC00)), Kind::File);
    }
}

} // namespace

Recordings::Pc make(bool isForFiles) {
    Recordings::Pc pc;
    addRegistry(pc.registry, isForFiles);
    addDrives(pc.drives, isForFiles);
    if (isForFiles) { // which have NTFS's order there
        for (const QString folder : {"C:/", "C:/Games"}) {
            QStringList names;
            for (const QString& name : pc.drives.list(path(folder))) {
                names.append(name);
            }
            names.sort(Qt::CaseInsensitive);
            pc.drives.list(path(folder), names, Recordings::File::Kind::File);
        }
    }
    pc.shellFolders = {{5, "C:\\Users\\ö\\\"Documents\""}, {35, "C:\\ProgramData"}};
    pc.volumes = {{'C', "\\\\?\\Volume{1}\\"}, {'E', "\\\\?\\Volume{2}\\"}};
    pc.environment.insert("A", "");
    pc.environment.insert("B", "C:\\x \"y\"");
    pc.packages = {{{"F_1", "F_1.0_1", {"F_1!App", "F_1!B"}}, {"G_1", "G_1.0_1", {}}}};
    pc.hostExecutable = "C:\\host.exe";
    pc.hostVersion = 0x000100020003FFFFU;
    pc.userLocations = {{"wal", "D:\\Wal"}};
    pc.codePage = 1250;
    return pc;
}

} // namespace OddPc
