#include "FindTest.h"
#include "recordings/OddPc.h"
#include "recordings/PcFile.h"
#include "recordings/Recording.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QFileInfo>

namespace {

using Unpack = FindTest;

TEST_F(Unpack, MakesAFolderThatIsTheSamePc) {
    const QString file = program.file("käfer.json", Recordings::renderPcFile(OddPc::make(true)));
    const QString folder = program.folder() + "/pc";
    const FindRun run = program.runBare({"unpack", file, folder});
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.exitStatus, 0);
    EXPECT_TRUE(Recordings::readRecording(folder.toUtf8()).pc == OddPc::make(true));
}

TEST_F(Unpack, ReadsStandardInput) {
    program.setInput(Recordings::renderPcFile(OddPc::make(true)));
    const QString folder = program.folder() + "/pc";
    EXPECT_EQ(program.runBare({"unpack", "-", folder}).errors, "");
    EXPECT_TRUE(Recordings::readRecording(folder.toUtf8()).pc == OddPc::make(true));
    program.setInput("{\n");
    EXPECT_EQ(program.runBare({"unpack", "-", folder + "2"}).errors,
              "luruludri-find: standard input:2: a name in quotes is expected\n");
}

TEST_F(Unpack, TellsWhatAFolderCannotHave) {
    Recordings::Pc pc;
    pc.registry.make(Recordings::RegKey::Root::Users, {"a\nb"}, Recordings::RegistryView::Bits64);
    const FindRun run =
        program.runBare({"unpack", program.file("pc.json", Recordings::renderPcFile(pc)), program.folder() + "/pc"});
    EXPECT_EQ(run.exitStatus, 2);
    EXPECT_TRUE(run.errors.contains("no registry file can have this name: HKEY_USERS\\a")) << run.errors.toStdString();
}

TEST_F(Unpack, WrongUseIsRefused) {
    const QString refusal = "luruludri-find: %1\nluruludri-find: try luruludri-find unpack --help\n";
    EXPECT_EQ(program.runBare({"unpack"}).errors, refusal.arg("unpack: FILE is missing"));
    EXPECT_EQ(program.runBare({"unpack", "a"}).errors, refusal.arg("unpack: FOLDER is missing"));
    EXPECT_EQ(program.runBare({"--pc", "a", "unpack", "a", "b"}).errors, refusal.arg("unpack does not take --pc"));
    const QString games = program.file("games.json", R"({"games": []})");
    const FindRun run = program.runBare({"unpack", games, program.folder() + "/pc"});
    EXPECT_EQ(run.errors, "luruludri-find: " + games + ": no recorded PC here\n");
    EXPECT_EQ(run.exitStatus, 2);
    EXPECT_FALSE(QFileInfo::exists(program.folder() + "/pc"));
    const QString file = program.file("pc.json", Recordings::renderPcFile({}));
    EXPECT_EQ(program.runBare({"unpack", file, program.folder()}).errors,
              "luruludri-find: " + program.folder() + ": the folder is not empty\n");
}

} // namespace
