#include "recordings/PcPage.h"

#include "common/QtPrinters.h"
#include "recordings/HostFiles.h"
#include "recordings/OddPc.h"
#include "recordings/PcFile.h"
#include "recordings/Recording.h"

#include <gmock/gmock.h>

#include <QTemporaryDir>

namespace {

using namespace Recordings;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QByteArray before = "<!DOCTYPE html>\n<title>x</title>\n";
const QByteArray begin = R"(<script type="application/json" id="recording">)";
const QByteArray end = "</script>";

QByteArray pageOf(const QByteArray& json) {
    return before + begin + pcForPage(json) + end + "\n<p>x</p>\n";
}

class PcPage : public ::testing::Test {
protected:
    Recording read(const QByteArray& page) const {
        EXPECT_TRUE(HostFiles::write(path(), page));
        return readRecording(path());
    }

    QByteArray path() const { return m_folder.path().toUtf8() + "/käfer.html"; }

    QByteArray folder() const { return m_folder.path().toUtf8(); }

private:
    QTemporaryDir m_folder;
};

TEST_F(PcPage, APcInAPageIsReadAsItWas) {
    const Pc pc = OddPc::make(false);
    const Recording recording = read(pageOf(renderPcFile(pc)));
    EXPECT_EQ(recording.fault, "");
    EXPECT_THAT(recording.problems, IsEmpty());
    EXPECT_TRUE(recording.pc == pc);
}

TEST_F(PcPage, NoNameEndsTheScriptItStandsIn) {
    EXPECT_EQ(pcForPage("</script><!--&amp;\xE2\x80\xA8\xE2\x80\xA9"),
              R"(\u003c/script\u003e\u003c!--\u0026amp;\u2028\u2029)");
    Pc pc;
    pc.environment.insert("OculusBase", QString("</script><script>alert(1)</script><!-- & ") + QChar(0x2028));
    EXPECT_TRUE(read(pageOf(renderPcFile(pc))).pc == pc);
}

TEST_F(PcPage, APageBeginsWithAnAngleBracketWhateverStandsBefore) {
    const QByteArray page = pageOf(renderPcFile(Pc()));
    EXPECT_TRUE(isPage(page));
    EXPECT_TRUE(isPage("\xEF\xBB\xBF" + page));
    EXPECT_TRUE(isPage("\r\n\t " + page));
    EXPECT_FALSE(isPage(renderPcFile(Pc())));
    EXPECT_FALSE(isPage(""));
    EXPECT_EQ(read("\xEF\xBB\xBF\r\n" + page).fault, "");
}

TEST_F(PcPage, APageWithoutAPcIsRefused) {
    EXPECT_EQ(read("<!DOCTYPE html><title>x</title>").fault, "this page carries no recorded PC");
    EXPECT_EQ(read(before + begin).fault, "the page is cut off: the recorded PC in it has no end");
    EXPECT_EQ(read(before + begin + "{\"format\": \"luruludri-pc\"").fault,
              "the page is cut off: the recorded PC in it has no end");
    EXPECT_EQ(read(pageOf("")).fault, "no recorded PC here");
    EXPECT_EQ(read(pageOf("[]")).fault, "no recorded PC here");
    EXPECT_EQ(read(pageOf(R"({"format": "luruludri-pc", "version": 2})")).fault,
              "its format is not version 1, the only one that is known here");
}

TEST_F(PcPage, FaultsAreToldInTheLinesOfThePage) {
    const Recordings::Recording faulty = read(pageOf("{\n\"format\": x}"));
    EXPECT_EQ(faulty.fault, "a value is expected");
    EXPECT_EQ(faulty.faultLine, 4);
    const Recording recording = read(pageOf("{\"format\": \"luruludri-pc\",\n\"version\": 1,\n\"volumes\": 1}"));
    EXPECT_EQ(recording.fault, "");
    ASSERT_EQ(recording.problems.size(), 1U);
    EXPECT_EQ(recording.problems.front().line, 5);
    EXPECT_EQ(recording.problems.front().file, QString::fromUtf8(path()));
}

TEST_F(PcPage, OneThatLiesALevelDeeperIsSeen) {
    read(pageOf(renderPcFile(Pc())));
    HostFiles::write(folder() + "/other.html", "<p>");
    EXPECT_THAT(recordingsIn(folder()), ElementsAre("käfer.html"));
}

} // namespace
