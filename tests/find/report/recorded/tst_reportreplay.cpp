#include "recorded/FullPc.h"
#include "recorded/ReplayTest.h"

namespace {

class ReportTest : public ReplayTest {
protected:
    /// Makes the report page.html of the PC, anew.
    FindRun report(const QString& pc, const QString& catalogue, const QStringList& options = {}) const {
        QFile::remove(path("page.html"));
        return program.runBare(QStringList{"--pc", pc, "report", path("page"), catalogue} + options);
    }
};

TEST_F(ReportTest, APageAnswersAsThePcDid) {
    const FullPc pc(program);
    const FindRun run = report(pc.folder(), pc.catalogue(), {"--keep-names"});
    EXPECT_EQ(run.exitStatus, 0);
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(answers(path("page.html"), pc.catalogue()), answers(pc.folder(), pc.catalogue()));
}

TEST_F(ReportTest, ThePageTellsNoPrivateNameAndNoSecret) {
    const FullPc pc(program);
    const FindRun run = report(pc.folder(), pc.catalogue());
    EXPECT_EQ(run.exitStatus, 0) << run.errors.toStdString();
    const QString page = contents("page.html");
    for (const QString& name : {QString("Anneliese"), QString("KAEFER-PC"), FullPc::secret}) {
        EXPECT_FALSE(page.contains(name, Qt::CaseInsensitive)) << name.toStdString();
        EXPECT_TRUE(run.output.contains(name) || name == FullPc::secret) << "who made it may know";
    }
}

TEST_F(ReportTest, TheRecordingInThePageIsTheOneThatRecordMakes) {
    ASSERT_EQ(report(samplePc, sampleCatalogue).exitStatus, 0);
    ASSERT_EQ(program.runBare({"--pc", samplePc, "record", path("1"), sampleCatalogue}).exitStatus, 0);
    ASSERT_EQ(program.runBare({"--pc", path("page.html"), "record", path("2"), sampleCatalogue}).exitStatus, 0);
    EXPECT_EQ(contents("1.json"), contents("2.json"));
}

TEST_F(ReportTest, APageIsUnpacked) {
    ASSERT_EQ(report(samplePc, sampleCatalogue).exitStatus, 0);
    const QString expected = answers(path("page.html"), sampleCatalogue);
    ASSERT_EQ(program.runBare({"unpack", path("page.html"), path("folder")}).exitStatus, 0);
    EXPECT_EQ(answers(path("folder"), sampleCatalogue), expected);
}

TEST_F(ReportTest, OfAReplayedPageIsTheSameButForTheNamesThatOnlySteamsManifestsTell) {
    ASSERT_EQ(report(samplePc, sampleCatalogue).exitStatus, 0);
    ASSERT_TRUE(QFile::rename(path("page.html"), path("first.html")));
    ASSERT_EQ(report(path("first.html"), sampleCatalogue).exitStatus, 0);
    const auto games = [this](const QString& name) {
        const QString page = contents(name);
        return page.mid(page.indexOf("<table"), page.indexOf("<h2 id=\"lists\"") - page.indexOf("<table"));
    };
    const QString row = "<tr><th scope=\"row\"><bdi>%1</bdi></th><td data-title=\"Listed in\">Steam</td>"
                        "<td data-title=\"Where\" class=\"path\"><bdi>%2<wbr></bdi></td></tr>\n";
    const QString named =
        row.arg("SteamVR", "C:/<wbr>Program Files (x86)/<wbr>Steam/<wbr>steamapps/<wbr>common/<wbr>SteamVR");
    const QString numbered = row.arg("250820", "");
    EXPECT_TRUE(games("first.html").contains(named));
    EXPECT_TRUE(games("page.html").contains(numbered));
    EXPECT_EQ(games("page.html").remove(numbered), games("first.html").remove(named));
}

TEST_F(ReportTest, SaysWhatItIsOnTheConsole) {
    const FindRun run = report(samplePc, sampleCatalogue);
    EXPECT_TRUE(run.output.startsWith("14 of 17 games found\nRecorded into " + path("page.html") + ":\n"));
    EXPECT_TRUE(run.output.contains("\"Jördis\" is now \"user\""));
}

TEST_F(ReportTest, FaultsOfTheRecordedPcAreInThePage) {
    const QString pc = program.file("pc.json", "{\"format\": \"luruludri-pc\", \"version\": 1,\n\"volumes\": 3}");
    const FindRun run = report(pc, program.file("none.json", R"({"games": []})"));
    EXPECT_EQ(run.exitStatus, 2) << "as for any answers of a PC with faults";
    EXPECT_TRUE(contents("page.html").contains("<li><bdi>" + pc + ":2: volumes: "));
}

TEST_F(ReportTest, WhatIsNoPageOfAPcIsRefused) {
    const QString page = program.file("x.html", "<!DOCTYPE html><p>");
    EXPECT_EQ(program.runBare({"--pc", page, sampleCatalogue}).errors,
              "luruludri-find: " + page + ": this page carries no recorded PC\n");
    EXPECT_EQ(program.runBare({"unpack", page, path("new")}).errors,
              "luruludri-find: " + page + ": this page carries no recorded PC\n");
}

} // namespace
