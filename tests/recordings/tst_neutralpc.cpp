#include "recordings/NeutralPc.h"
#include "recordings/PcFile.h"
#include "recordings/RegValues.h"
#include "recordings/ShellLink.h"

#include "common/QtPrinters.h"

#include <gmock/gmock.h>

namespace {

using Kind = Recordings::File::Kind;
using Root = Recordings::RegKey::Root;
using View = Recordings::RegistryView;

Recordings::DrivePath path(const QString& text) {
    return *Recordings::DrivePath::parse(text);
}

/// A PC with the name in every text that a recording has.
Recordings::Pc pcOf(const QString& name) {
    Recordings::Pc pc;
    Recordings::RegistryNode& key = pc.registry.make(Root::CurrentUser, {"Software", name + "_is1"}, View::Bits64);
    key.apply({"InstallLocation", false, 1, Recordings::storedText("C:\\Users\\" + name + "\\x")});
    pc.registry.make(Root::CurrentUser, {}, View::Bits64)
        .apply({"of a root", false, 1, Recordings::storedText("D:\\" + name)});
    const QString folder = "C:/Users/" + name;
    pc.drives.make(path(folder + "/z"), Kind::File);
    pc.drives.make(path(folder + "/b of " + name), Kind::Folder).isHidden = true;
    pc.drives.make(path(folder + "/libraryfolders.vdf"), Kind::File).contents =
        QString("\"path\"\"D:\\\\%1\"\n").arg(name).toUtf8();
    pc.drives.make(path(folder + "/x.lnk"), Kind::File).contents = Recordings::renderShellLink("D:\\" + name + "\\x");
    pc.shellFolders.insert(11, "C:\\Users\\" + name + "\\Start Menu");
    pc.environment.insert("OculusBase", "D:\\" + name);
    pc.userLocations.insert("anna", "D:\\" + name);
    pc.hostExecutable = "D:\\" + name + "\\x.exe";
    pc.packages = {{{"anna_1", "anna_1.0_1", {"anna_1!App"}}}};
    pc.codePage = 1250;
    return pc;
}

QByteArray mapWhole(const QString& name, const QByteArray& contents, const Recordings::MapText& map) {
    EXPECT_EQ(name, "libraryfolders.vdf");
    return map(QString::fromUtf8(contents)).toUtf8();
}

TEST(NeutralPc, HasNeutralNamesInEveryText) {
    const Recordings::NeutralNames names({{"anna", "user"}}, "Users");
    const Recordings::Pc neutral = Recordings::neutralPc(pcOf("Anna"), names, mapWhole);
    EXPECT_EQ(Recordings::renderPcFile(neutral), Recordings::renderPcFile(pcOf("user")));
    EXPECT_THAT(neutral.drives.list(path("C:/Users/user")),
                ::testing::ElementsAre("z", "b of user", "libraryfolders.vdf", "x.lnk"))
        << "in the file system's order";
}

TEST(NeutralPc, IsTheSameWithoutNames) {
    EXPECT_TRUE(Recordings::neutralPc(pcOf("Anna"), {}, mapWhole) == pcOf("Anna"));
}

} // namespace
