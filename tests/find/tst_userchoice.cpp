#include "find/answers/GivenFolder.h"
#include "find/answers/UserChoice.h"
#include "recordings/Recording.h"

#include "FindProgram.h"

#include "common/QtPrinters.h"
#include "find/pc/System.h"

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

TEST(UserChoice, TheCatalogueSaysWhatTheExecutablesAre) {
    Find::CatalogueFaults faults;
    const auto catalogue = Find::parseCatalogue(games, faults);
    ASSERT_TRUE(catalogue) << faults.front().message.toStdString();
    EXPECT_EQ(Find::executablesFor(*catalogue, "Käfer"), (QStringList{"bin\\k.exe", "k.exe", "wal.exe"}));
    EXPECT_EQ(Find::executablesFor(*catalogue, "installed "), QStringList{"w.exe"});
    EXPECT_EQ(Find::executablesFor(*catalogue, "Kaefer"), QStringList());
}

TEST(UserChoice, AFolderReachesThePlugin) {
    const FindProgram program;
    const FindRun run = program.run({"locate", "installed", program.folder(), program.file("g.json", games)});
    EXPECT_EQ(run.exitStatus, 0);
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.output, "installed: D:\\Spiele\\Gewählt\n") << "what is remembered, not what was given";
    EXPECT_EQ(program.fakeLog(), (QStringList{"Create", "userProvidedLocation(installed|w.exe)",
                                              "setUserLocation(" + program.folder() + ")", "~userProvidedLocation",
                                              "~Create", "unloaded"}));
}

TEST(UserChoice, AFolderWithoutTheGameIsRememberedAndTold) {
    const FindProgram program;
    const FindRun run = program.run({"locate", "Käfer", program.folder(), program.file("g.json", games)});
    EXPECT_EQ(run.exitStatus, 1);
    EXPECT_EQ(run.output.section('\n', 0, 0), "Käfer: D:\\Spiele\\Gewählt");
    EXPECT_EQ(run.errors,
              "luruludri-find: the folder holds none of the game's executables: bin\\k.exe, k.exe, wal.exe\n");
}

TEST(UserChoice, AKeyThatTheCatalogueDoesNotHaveIsRememberedAllTheSameAndTold) {
    const FindProgram program;
    const QString catalogue = program.file("g.json", games);
    const FindRun run = program.run({"locate", " Qualle", program.folder(), catalogue});
    EXPECT_EQ(run.exitStatus, 0);
    EXPECT_EQ(run.output, "Qualle: D:\\Spiele\\Gewählt\n");
    EXPECT_EQ(run.errors,
              "luruludri-find: " + catalogue + ": no game has the key \"Qualle\"; remembered all the same\n");
    EXPECT_EQ(program.fakeLog().mid(1, 2),
              (QStringList{"userProvidedLocation( Qualle|)", "setUserLocation(" + program.folder() + ")"}));
}

TEST(UserChoice, AKeyOfAGameWithoutExecutablesIsKnown) {
    const FindProgram program;
    const QString catalogue = program.file("g.json", R"({"games": [{"name": "Wal", "finders": [
        {"type": "multi", "finders": [{"type": "userProvidedLocation", "key": "Wal", "executables": []}]}]}]})");
    const FindRun run = program.run({"locate", "Wal", program.folder(), catalogue});
    EXPECT_EQ(run.exitStatus, 0);
    EXPECT_EQ(run.errors, "");
}

TEST(UserChoice, KeysAreComparedAsTheSettingsCompareThem) {
    Find::CatalogueFaults faults;
    const auto catalogue = Find::parseCatalogue(games, faults);
    ASSERT_TRUE(catalogue);
    EXPECT_EQ(Find::hasKey(*catalogue, "KÄFER"), Find::isPcItself()) << "off Windows letter case counts";
    qputenv(Recordings::environmentVariable, "a recorded PC");
    EXPECT_TRUE(Find::hasKey(*catalogue, "KÄFER"));
    qunsetenv(Recordings::environmentVariable);
    EXPECT_TRUE(Find::hasKey(*catalogue, " Käfer"));
    EXPECT_FALSE(Find::hasKey(*catalogue, "Kaefer"));
}

TEST(UserChoice, AKeyThatIsNearlyOneOfTheCatalogueIsTakenForOne) {
    const FindProgram program;
    const FindRun run = program.run({"locate", "Käffer", program.folder(), program.file("g.json", games)});
    EXPECT_TRUE(
        run.errors.endsWith("no game has the key \"Käffer\"; remembered all the same; did you mean \"Käfer\"?\n"))
        << run.errors.toStdString();
}

TEST(UserChoice, TheFindersThatItShutsOutAreTold) {
    const FindProgram program;
    const QString catalogue = program.file("g.json", R"({"games": [
        {"name": "Käferrennen", "finders": [
            {"type": "universalApp", "packageFamily": "before"},
            {"type": "multi", "finders": [
                {"type": "userProvidedLocation", "key": "installed", "executables": []},
                {"type": "universalApp", "packageFamily": "within"}]},
            {"type": "folder", "folder": "D:\\X", "executables": ["x.exe"]}]},
        {"name": "Wal", "finders": [{"type": "userProvidedLocation", "key": "installed", "executables": []}]}]})");
    const FindRun run = program.run({"locate", "installed", program.folder(), catalogue});
    EXPECT_EQ(run.exitStatus, 0);
    EXPECT_EQ(run.output, "installed: D:\\Spiele\\Gewählt\n"
                          "Käferrennen: as long as this folder is chosen, these finders are not asked:\n"
                          "    {\"type\": \"universalApp\", \"packageFamily\": \"within\"}\n"
                          "    {\"type\": \"folder\", \"folder\": \"D:\\\\X\", \"executables\": [\"x.exe\"]}\n");
}

TEST(UserChoice, OnlyAFullPathToAFolderThatIsThereIsRemembered) {
    const FindProgram program;
    const QString catalogue = program.file("g.json", games);
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

TEST(UserChoice, AQuotedFolderThatEndsInABackslashIsTakenForWhatWasMeant) {
    EXPECT_EQ(Find::givenFolder("D:\\Games\\X\"").folder, "D:\\Games\\X");
    EXPECT_EQ(Find::givenFolder("D:\\Games\\X\"").rest, "");
    EXPECT_EQ(Find::givenFolder("D:\\Games\\X\" my games.json").folder, "D:\\Games\\X");
    EXPECT_EQ(Find::givenFolder("D:\\Games\\X\" my games.json").rest, "my games.json");
    EXPECT_EQ(Find::givenFolder("D:\\Games\\X").folder, "D:\\Games\\X");

    const FindProgram program;
    const QString catalogue = program.file("g.json", games);
    const FindRun run = program.run({"locate", "installed", program.folder() + "\" " + catalogue});
    EXPECT_EQ(run.exitStatus, 0) << run.errors.toStdString();
    EXPECT_EQ(program.fakeLog().value(2), "setUserLocation(" + program.folder() + ")");
    const FindRun more = program.run({"locate", "installed", program.folder() + "\" a.json", "b.json"});
    EXPECT_TRUE(more.errors.startsWith("luruludri-find: unexpected argument \"b.json\"\n"))
        << more.errors.toStdString();
}

TEST(UserChoice, AnEmptyFolderForgets) {
    const FindProgram program;
    const FindRun run = program.run({"forget", " Käfer"});
    EXPECT_EQ(run.exitStatus, 0);
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.output, "Käfer: no folder was remembered\n");
    EXPECT_EQ(program.fakeLog().mid(1, 2), (QStringList{"userProvidedLocation( Käfer|)", "setUserLocation()"}));
}

TEST(UserChoice, WhatThePluginDoesNotDoIsTold) {
    FindProgram program;
    const QString catalogue = program.file("g.json", games);
    for (const char* mode : {"no locations", "no finders"}) {
        program.setFakeMode(mode);
        const FindRun located = program.run({"locate", "Qualle", program.folder(), catalogue});
        EXPECT_EQ(located.exitStatus, 2) << mode;
        EXPECT_EQ(located.errors, "luruludri-find: the folder could not be remembered\n") << mode;
        const FindRun forgotten = program.run({"forget", "Qualle"});
        EXPECT_EQ(forgotten.exitStatus, 2) << mode;
        EXPECT_EQ(forgotten.errors, "luruludri-find: the folder could not be forgotten\n") << mode;
        EXPECT_EQ(located.output + forgotten.output, "") << mode;
    }
}

TEST(UserChoice, AMissingCatalogueIsToldBeforeAnythingIsRemembered) {
    const FindProgram program;
    EXPECT_EQ(program.run({"locate", "Käfer", "D:\\Spiele", program.folder() + "/none.json"}).exitStatus, 2);
    EXPECT_TRUE(program.fakeLog().isEmpty());
}

TEST(UserChoice, OfARecordedPcIsChangedInTheRecording) {
    if (Find::isPcItself()) {
        GTEST_SKIP() << "this build knows no recordings";
    }
    FindProgram program;
    const QString catalogue = program.file("g.json", games);
    const QString pc = QFileInfo(program.file("pc/pc.json", "{}")).path();
    const QString refusal =
        "luruludri-find: a recorded PC is never written to; to try a folder, change \"userLocations\" in " + pc +
        "/pc.json\n";
    const std::vector<QStringList> commands{{"--pc", pc, "locate", "Käfer", "D:\\Spiele", catalogue},
                                            {"--pc", pc, "forget", "Käfer"}};
    for (const QStringList& command : commands) {
        const FindRun run = program.run(command);
        EXPECT_EQ(run.exitStatus, 2);
        EXPECT_EQ(run.errors, refusal);
        EXPECT_EQ(run.output, "");
    }
    program.setVariable("LURULUDRI_PC", pc);
    EXPECT_EQ(program.run({"forget", "Käfer"}).errors, refusal);
    EXPECT_TRUE(program.fakeLog().isEmpty()) << "the plug-in is not asked";
}

TEST(UserChoice, OfARecordingInOneFileIsChangedInItOrInWhatUnpackMakesOfAPage) {
    if (Find::isPcItself()) {
        GTEST_SKIP() << "this build knows no recordings";
    }
    const FindProgram program;
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

TEST(UserChoice, AFolderIsRememberedWithoutTheSeparatorsAtItsEnd) {
    EXPECT_EQ(Find::withoutLastSeparators("/Spiele/Wal/"), "/Spiele/Wal");
    EXPECT_EQ(Find::withoutLastSeparators("/Spiele/Wal//"), "/Spiele/Wal");
    EXPECT_EQ(Find::withoutLastSeparators("/Spiele/Wal"), "/Spiele/Wal");
    EXPECT_EQ(Find::withoutLastSeparators("/"), "/");
    EXPECT_EQ(Find::withoutLastSeparators("C:/"), "C:/") << "the root, as \"C:\" is the drive's current folder";
    if (Find::isPcItself()) {
        EXPECT_EQ(Find::withoutLastSeparators("C:\\Spiele\\Wal\\"), "C:\\Spiele\\Wal");
    }
    const FindProgram program;
    program.run({"locate", "installed", program.folder() + '/', program.file("g.json", games)});
    EXPECT_TRUE(program.fakeLog().contains("setUserLocation(" + program.folder() + ")"));
}

TEST(UserChoice, ForgettingWhatNobodyRememberedNamesTheKeyThatMayHaveBeenMeant) {
    const FindProgram program;
    const FindRun known = program.runBare({"forget", "moosgarten"}); // of the catalogue beside the program
    EXPECT_EQ(known.output, "moosgarten: no folder was remembered\n");
    EXPECT_EQ(program.runBare({"forget", "mosgarten"}).output,
              "mosgarten: no folder was remembered; did you mean \"moosgarten\"?\n");
}

TEST(UserChoice, TheRealPluginRemembersFindsAndForgets) {
    FindProgram program;
    program.file("Spiele/Wal/bin/wal.exe", "");
    const QString folder = program.folder() + "/Spiele/Wal";
    const QString catalogue = program.file("g.json", R"({"games": [{"name": "Wal", "finders": [
        {"type": "userProvidedLocation", "key": "Wal", "executables": ["bin/wal.exe"]}]}]})");
    EXPECT_EQ(program.runBare({catalogue}).exitStatus, 1);

    const FindRun located = program.runBare({"locate", "Wal", folder + "/bin", catalogue});
    EXPECT_EQ(located.exitStatus, 0) << located.errors.toStdString();
    EXPECT_EQ(located.output, "Wal: " + QDir::toNativeSeparators(folder) + "\n");
    EXPECT_EQ(program.runBare({catalogue}).exitStatus, 0);

    EXPECT_EQ(program.runBare({"forget", "Wal"}).output, "Wal: forgotten\n");
    EXPECT_EQ(program.runBare({catalogue}).exitStatus, 1);
}

} // namespace
