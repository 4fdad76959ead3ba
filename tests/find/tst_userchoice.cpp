#include "FindTest.h"

#include "find/answers/GivenFolder.h"
#include "find/answers/UserChoice.h"
#include "recordings/Recording.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>

namespace {

constexpr const char* games = R"({"games": [
    {"name": "Käferrennen", "finders": [
        {"type": "folder", "folder": "Käfer", "executables": ["folder.exe"]},
        {"type": "userProvidedLocation", "key": "Käfer", "executables": ["bin\\k.exe", "k.exe"]}]},
    {"name": "Wal", "finders": [{"type": "multi", "finders": [
        {"type": "userProvidedLocation", "key": " Käfer ", "executables": ["k.exe", "wal.exe"]},
        {"type": "userProvidedLocation", "key": "installed", "executables": ["w.exe"]}]}]}]})";

class UserChoice : public FindTest {
protected:
    const QString catalogue = program.file("games.json", games);
};

using UserChoiceWithRecordings = RecordingFindTest;

TEST_F(UserChoice, TheCatalogueSaysWhatTheExecutablesAre) {
    Find::CatalogueFaults faults;
    const auto parsed = Find::parseCatalogue(games, faults);
    ASSERT_TRUE(parsed) << faults.front().message.toStdString();
    EXPECT_EQ(Find::executablesFor(*parsed, "Käfer"), (QStringList{"bin\\k.exe", "k.exe", "wal.exe"}));
    EXPECT_EQ(Find::executablesFor(*parsed, "installed "), QStringList{"w.exe"});
    EXPECT_EQ(Find::executablesFor(*parsed, "Kaefer"), QStringList());
}

TEST_F(UserChoice, AFolderReachesThePlugin) {
    EXPECT_EQ(program.run({"locate", "installed", program.folder(), catalogue}),
              printed(0, "installed: D:\\Spiele\\Gewählt\n"))
        << "what is remembered, not what was given";
    EXPECT_EQ(program.fakeLog(), (QStringList{"Create", "userProvidedLocation(installed|w.exe)",
                                              "setUserLocation(" + program.folder() + ")", "~userProvidedLocation",
                                              "~Create", "unloaded"}));
}

TEST_F(UserChoice, AFolderWithoutTheGameIsRememberedAndTold) {
    const FindRun run = program.run({"locate", "Käfer", program.folder(), catalogue});
    EXPECT_EQ(run.exitStatus, 1);
    EXPECT_EQ(run.output.section('\n', 0, 0), "Käfer: D:\\Spiele\\Gewählt");
    EXPECT_EQ(run.errors,
              "luruludri-find: the folder holds none of the game's executables: bin\\k.exe, k.exe, wal.exe\n");
}

TEST_F(UserChoice, AKeyThatTheCatalogueDoesNotHaveIsRememberedAllTheSameAndTold) {
    EXPECT_EQ(
        program.run({"locate", " Qualle", program.folder(), catalogue}),
        (FindRun{0, "Qualle: D:\\Spiele\\Gewählt\n",
                 "luruludri-find: " + catalogue + ": no game has the key \"Qualle\"; remembered all the same\n"}));
    EXPECT_EQ(program.fakeLog().mid(1, 2),
              (QStringList{"userProvidedLocation( Qualle|)", "setUserLocation(" + program.folder() + ")"}));
}

TEST_F(UserChoice, AKeyOfAGameWithoutExecutablesIsKnown) {
    const QString file = program.file("g.json", R"({"games": [{"name": "Wal", "finders": [
        {"type": "multi", "finders": [{"type": "userProvidedLocation", "key": "Wal", "executables": []}]}]}]})");
    const FindRun run = program.run({"locate", "Wal", program.folder(), file});
    EXPECT_EQ(run.exitStatus, 0);
    EXPECT_EQ(run.errors, "");
}

TEST_F(UserChoice, KeysAreComparedAsTheSettingsCompareThem) {
    Find::CatalogueFaults faults;
    const auto parsed = Find::parseCatalogue(games, faults);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(Find::hasKey(*parsed, "KÄFER"), Find::isPcItself()) << "off Windows letter case counts";
    qputenv(Recordings::environmentVariable, "a recorded PC");
    EXPECT_TRUE(Find::hasKey(*parsed, "KÄFER"));
    qunsetenv(Recordings::environmentVariable);
    EXPECT_TRUE(Find::hasKey(*parsed, " Käfer"));
    EXPECT_FALSE(Find::hasKey(*parsed, "Kaefer"));
}

TEST_F(UserChoice, AKeyThatIsNearlyOneOfTheCatalogueIsTakenForOne) {
    const FindRun run = program.run({"locate", "Käffer", program.folder(), catalogue});
    EXPECT_TRUE(
        run.errors.endsWith("no game has the key \"Käffer\"; remembered all the same; did you mean \"Käfer\"?\n"))
        << run.errors.toStdString();
}

TEST_F(UserChoice, TheFindersThatItShutsOutAreTold) {
    const QString file = program.file("g.json", R"({"games": [
        {"name": "Käferrennen", "finders": [
            {"type": "universalApp", "packageFamily": "before"},
            {"type": "multi", "finders": [
                {"type": "userProvidedLocation", "key": "installed", "executables": []},
                {"type": "universalApp", "packageFamily": "within"}]},
            {"type": "folder", "folder": "D:\\X", "executables": ["x.exe"]}]},
        {"name": "Wal", "finders": [{"type": "userProvidedLocation", "key": "installed", "executables": []}]}]})");
    const FindRun run = program.run({"locate", "installed", program.folder(), file});
    EXPECT_EQ(run.exitStatus, 0);
    EXPECT_EQ(run.output, "installed: D:\\Spiele\\Gewählt\n"
                          "Käferrennen: as long as this folder is chosen, these finders are not asked:\n"
                          "    {\"type\": \"universalApp\", \"packageFamily\": \"within\"}\n"
                          "    {\"type\": \"folder\", \"folder\": \"D:\\\\X\", \"executables\": [\"x.exe\"]}\n");
}

TEST_F(UserChoice, OnlyAFullPathToAFolderThatIsThereIsRemembered) {
    const auto complaint = [&](const QString& folder) {
        const FindRun run = program.run({"locate", "Käfer", folder, catalogue});
        EXPECT_EQ(run.exitStatus, 2);
        EXPECT_EQ(run.output, "");
        return run.errors;
    };
    EXPECT_TRUE(complaint("Spiele").startsWith("luruludri-find: Spiele: is not a full path (the current folder is "));
    const QString missing = program.folder() + "/keiner";
    EXPECT_EQ(complaint(missing), "luruludri-find: " + missing + ": there is no such folder\n");
    EXPECT_EQ(complaint(catalogue), "luruludri-find: " + catalogue + ": is not a folder\n");
    if (Find::isPcItself()) {
        for (const QString folder : {"D:Spiele", "\\Spiele", "/Spiele"}) {
            EXPECT_TRUE(complaint(folder).contains(": is not a full path (")) << folder.toStdString();
        }
        EXPECT_EQ(complaint("q:\\Spiele"), "luruludri-find: q:\\Spiele: there is no drive Q:\n");
    }
    EXPECT_TRUE(program.fakeLog().isEmpty()) << "the plug-in is not asked";
}

TEST_F(UserChoiceWithRecordings, AQuoteInAFoldersNameIsItsOwnOffWindows) {
    EXPECT_EQ(Find::givenFolder("/Spiele/\"Wal\" neu").folder, "/Spiele/\"Wal\" neu");
}

TEST_F(UserChoice, AQuotedFolderThatEndsInABackslashIsTakenForWhatWasMeant) {
    if (!Find::isPcItself()) {
        GTEST_SKIP() << "no shell takes it so";
    }
    EXPECT_EQ(Find::givenFolder("D:\\Games\\X\"").folder, "D:\\Games\\X");
    EXPECT_EQ(Find::givenFolder("D:\\Games\\X\"").rest, "");
    EXPECT_EQ(Find::givenFolder("D:\\Games\\X\" my games.json").folder, "D:\\Games\\X");
    EXPECT_EQ(Find::givenFolder("D:\\Games\\X\" my games.json").rest, "my games.json");
    EXPECT_EQ(Find::givenFolder("D:\\Games\\X").folder, "D:\\Games\\X");

    const FindRun run = program.run({"locate", "installed", program.folder() + "\" " + catalogue});
    EXPECT_EQ(run.exitStatus, 0) << run.errors.toStdString();
    EXPECT_EQ(program.fakeLog().value(2), "setUserLocation(" + program.folder() + ")");
    const FindRun more = program.run({"locate", "installed", program.folder() + "\" a.json", "b.json"});
    EXPECT_TRUE(more.errors.startsWith("luruludri-find: unexpected argument \"b.json\"\n"))
        << more.errors.toStdString();
}

TEST_F(UserChoice, AnEmptyFolderForgets) {
    EXPECT_EQ(program.run({"forget", " Käfer"}), printed(0, "Käfer: no folder was remembered\n"));
    EXPECT_EQ(program.fakeLog().mid(1, 2), (QStringList{"userProvidedLocation( Käfer|)", "setUserLocation()"}));
}

TEST_F(UserChoice, WhatThePluginDoesNotDoIsTold) {
    for (const char* mode : {"no locations", "no finders"}) {
        program.setFakeMode(mode);
        EXPECT_EQ(program.run({"locate", "Qualle", program.folder(), catalogue}),
                  failed("luruludri-find: the folder could not be remembered\n"))
            << mode;
        EXPECT_EQ(program.run({"forget", "Qualle"}), failed("luruludri-find: the folder could not be forgotten\n"))
            << mode;
    }
}

TEST_F(UserChoice, AMissingCatalogueIsToldBeforeAnythingIsRemembered) {
    EXPECT_EQ(program.run({"locate", "Käfer", "D:\\Spiele", program.folder() + "/none.json"}).exitStatus, 2);
    EXPECT_TRUE(program.fakeLog().isEmpty());
}

TEST_F(UserChoiceWithRecordings, OfARecordedPcIsChangedInTheRecording) {
    const QString pc = QFileInfo(program.file("pc/pc.json", "{}")).path();
    const QString refusal =
        "luruludri-find: a recorded PC is never written to; to try a folder, change \"userLocations\" in " + pc +
        "/pc.json\n";
    const QString catalogue = program.file("games.json", games);
    const std::vector<QStringList> commands{{"--pc", pc, "locate", "Käfer", "D:\\Spiele", catalogue},
                                            {"--pc", pc, "forget", "Käfer"}};
    for (const QStringList& command : commands) {
        EXPECT_EQ(program.run(command), failed(refusal));
    }
    program.setVariable("LURULUDRI_PC", pc);
    EXPECT_EQ(program.run({"forget", "Käfer"}).errors, refusal);
    EXPECT_TRUE(program.fakeLog().isEmpty()) << "the plug-in is not asked";
}

TEST_F(UserChoiceWithRecordings, OfARecordingInOneFileIsChangedInItOrInWhatUnpackMakesOfAPage) {
    const QByteArray json = R"({"format": "luruludri-pc", "version": 1})";
    const QString file = program.file("pc.json", json);
    EXPECT_EQ(program.run({"--pc", file, "forget", "Käfer"}).errors,
              "luruludri-find: a recorded PC is never written to; to try a folder, change \"userLocations\" in " +
                  file + "\n");
    const QString page = program.file(
        "pc.html", "<!DOCTYPE html>\n<script type=\"application/json\" id=\"recording\">" + json + "</script>\n");
    EXPECT_EQ(program.run({"--pc", page, "forget", "Käfer"}).errors,
              "luruludri-find: a recorded PC is never written to; to try a folder, change \"userLocations\" in the "
              "folder that \"unpack\" makes of " +
                  page + "\n");
}

TEST_F(UserChoice, AFolderIsRememberedWithoutTheSeparatorsAtItsEnd) {
    EXPECT_EQ(Find::withoutLastSeparators("/Spiele/Wal/"), "/Spiele/Wal");
    EXPECT_EQ(Find::withoutLastSeparators("/Spiele/Wal//"), "/Spiele/Wal");
    EXPECT_EQ(Find::withoutLastSeparators("/Spiele/Wal"), "/Spiele/Wal");
    EXPECT_EQ(Find::withoutLastSeparators("/"), "/");
    EXPECT_EQ(Find::withoutLastSeparators("C:/"), "C:/") << "the root, as \"C:\" is the drive's current folder";
    if (Find::isPcItself()) {
        EXPECT_EQ(Find::withoutLastSeparators("C:\\Spiele\\Wal\\"), "C:\\Spiele\\Wal");
    }
    program.run({"locate", "installed", program.folder() + '/', catalogue});
    EXPECT_TRUE(program.fakeLog().contains("setUserLocation(" + program.folder() + ")"));
}

TEST_F(UserChoice, ForgettingWhatNobodyRememberedNamesTheKeyThatMayHaveBeenMeant) {
    const FindRun known = program.runBare({"forget", "moosgarten"}); // of the catalogue beside the program
    EXPECT_EQ(known.output, "moosgarten: no folder was remembered\n");
    EXPECT_EQ(program.runBare({"forget", "mosgarten"}).output,
              "mosgarten: no folder was remembered; did you mean \"moosgarten\"?\n");
}

TEST_F(UserChoice, TheRealPluginRemembersFindsAndForgets) {
    program.file("Spiele/Wal/bin/wal.exe", "");
    const QString folder = program.folder() + "/Spiele/Wal";
    const QString file = program.file("g.json", R"({"games": [{"name": "Wal", "finders": [
        {"type": "userProvidedLocation", "key": "Wal", "executables": ["bin/wal.exe"]}]}]})");
    EXPECT_EQ(program.runBare({file}).exitStatus, 1);

    const FindRun located = program.runBare({"locate", "Wal", folder + "/bin", file});
    EXPECT_EQ(located.exitStatus, 0) << located.errors.toStdString();
    EXPECT_EQ(located.output, "Wal: " + QDir::toNativeSeparators(folder) + "\n");
    EXPECT_EQ(program.runBare({file}).exitStatus, 0);

    EXPECT_EQ(program.runBare({"forget", "Wal"}).output, "Wal: forgotten\n");
    EXPECT_EQ(program.runBare({file}).exitStatus, 1);
}

} // namespace
