#include "find/report/ReportPage.h"

#include "common/QtPrinters.h"
#include "find/report/ReportData.h"
#include "recordings/PcPage.h"

#include <gmock/gmock.h>

#include <QCryptographicHash>
#include <QRegularExpression>

namespace {

using namespace Find;
using ::testing::HasSubstr;
using ::testing::Not;

const QString evil = "</script><img onerror='x' alt=\"&amp;\">";
const char* const evilAsText = "&lt;/script&gt;&lt;img onerror=&apos;x&apos; alt=&quot;&amp;amp;&quot;&gt;";

ReportedGame foundGame(const QString& name) {
    ReportedGame game;
    game.answer = {name, true, {"steam://launch/1", "", {}, "D:\\Spiele\\" + name}};
    game.finders = QStringList{"steam"};
    return game;
}

ReportedGame missingGame(const QString& name) {
    using Kind = ExplanationLine::Kind;
    ReportedGame game;
    game.answer.name = name;
    game.finders = QStringList{"folder", "uninstall"};
    game.explanation = {{Kind::Finder, "1. folder: x"},      {Kind::Seen, "D:\\a: missing"},
                        {Kind::Seen, "D:\\b: missing"},      {Kind::Reason, "* The folder is missing."},
                        {Kind::Outcome, "=> not found"},     {Kind::Finder, "2. uninstall: y"},
                        {Kind::Reason, "* No such " + name}, {Kind::Outcome, "=> not found"}};
    return game;
}

std::string page(const ReportData& data, const ReportOrigin& origin = {}, const QByteArray& recording = "{}") {
    return renderReportPage(data, origin, recording).toStdString();
}

/// How often `part` is in `text`.
int count(const std::string& text, const char* part) {
    return QByteArray::fromStdString(text).count(part);
}

/// What stands between the first of these.
QByteArray between(const std::string& text, const char* begin, const char* end) {
    const QByteArray bytes = QByteArray::fromStdString(text);
    const int from = bytes.indexOf(begin) + static_cast<int>(qstrlen(begin));
    return bytes.mid(from, bytes.indexOf(end, from) - from);
}

TEST(ReportPage, ShowsAGameThatWasFound) {
    ReportData data;
    data.games.push_back(foundGame("Käferrennen"));
    const std::string html = page(data);
    EXPECT_THAT(html, HasSubstr("<th scope=\"row\"><bdi>Käferrennen</bdi></th>"));
    EXPECT_THAT(html, HasSubstr("<bdi>D:\\<wbr>Spiele\\<wbr>Käferrennen<wbr></bdi>"));
    EXPECT_THAT(html, HasSubstr("<bdi>steam:/<wbr>/<wbr>launch/<wbr>1<wbr></bdi>"));
    EXPECT_THAT(html, HasSubstr("<title>Games on this PC: 1 of 1 found</title>"));
    EXPECT_THAT(html, Not(HasSubstr("mark bad")));
}

TEST(ReportPage, TellsWhyAGameWasNotFound) {
    ReportData data;
    data.games.push_back(missingGame("Moosgarten"));
    data.games.back().similar = QStringList{"Start menu: Moos"};
    data.games.back().moreSimilar = 3;
    const std::string html = page(data);
    EXPECT_THAT(html, HasSubstr("<summary><bdi>No such Moosgarten</bdi></summary>\n"
                                "<h3><bdi>1. folder: x</bdi></h3>\n"
                                "<pre><bdi>D:\\a: missing\nD:\\b: missing</bdi></pre>\n"
                                "<p class=\"reason\"><bdi>The folder is missing.</bdi></p>\n"
                                "<p class=\"outcome\">=&gt; not found</p>\n"));
    EXPECT_THAT(html, HasSubstr("<li><bdi>Start menu: Moos</bdi></li>\n<li>and 3 more</li>\n"));
    EXPECT_THAT(html, HasSubstr("<span>folder</span> <span>uninstall</span>"));
    data.games.front() = missingGame("x");
    data.games.front().explanation.clear();
    EXPECT_THAT(page(data), HasSubstr("<summary><bdi>The catalogue has no finder for it.</bdi></summary>"));
}

TEST(ReportPage, WhateverATextIsItStaysText) {
    ReportData data;
    data.games = {foundGame(evil), missingGame(evil)};
    data.games.back().similar = QStringList{evil};
    data.runtimes.push_back({evil, "x", true, {evil, evil}});
    data.others.push_back({evil, {evil}, evil});
    data.lists.push_back({evil, 1, {evil}, 0});
    data.faults = QStringList{evil};
    data.contents.push_back({evil, evil});
    data.neutralNames = QStringList{evil};
    const std::string harmless = page(ReportData());
    const std::string html = page(data, {evil, evil, evil, evil, false}, "{\"x\": \"</script><img>\"}");
    EXPECT_EQ(count(html, "<img"), 0);
    EXPECT_EQ(count(html, "<script"), count(harmless, "<script"));
    EXPECT_EQ(count(html, "</script"), count(harmless, "</script"));
    // Paths among them are cut where lines may break.
    EXPECT_GE(count(html, evilAsText), 12);
}

TEST(ReportPage, TellsOfManyGamesInGroups) {
    ReportData data;
    for (int i = 0; i < 120; ++i) {
        data.games.push_back(foundGame(QString::number(i)));
    }
    const std::string html = page(data);
    EXPECT_EQ(count(html, "<tr data-state=\"found\">"), 120);
    EXPECT_EQ(count(html, "<tbody>"), 3 + 1) << "and one of the runtimes";
}

TEST(ReportPage, HasItsPolicyFitItsScriptAndItsStyleAndNothingElse) {
    const std::string html = page(ReportData());
    const auto hash = [](const QByteArray& text) {
        return "'sha256-" + QCryptographicHash::hash(text, QCryptographicHash::Sha256).toBase64() + "'";
    };
    const QByteArray style = between(html, "<style>", "</style>");
    const QByteArray script = between(html, "<script>", "</script>");
    EXPECT_GT(style.size(), 1000);
    EXPECT_GT(script.size(), 1000);
    EXPECT_EQ(between(html, "http-equiv=\"Content-Security-Policy\" content=\"", "\""),
              "default-src 'none'; script-src " + hash(script) + "; style-src " + hash(style) +
                  "; base-uri 'none'; form-action 'none'");
}

TEST(ReportPage, NamesNothingOutsideItself) {
    QString html = QString::fromStdString(page(ReportData()));
    html.remove(QRegularExpression("'sha256-[^']*'")); // in which any letters can follow each other
    EXPECT_FALSE(html.contains(QRegularExpression("https?:|//[a-z]|url\\(|@import|\\s(src|style|on[a-z]+)=")));
    EXPECT_FALSE(html.contains("\r"));
    const QRegularExpression link("href=\"([^\"]*)\"");
    for (auto links = link.globalMatch(html); links.hasNext();) {
        EXPECT_TRUE(links.next().captured(1).startsWith('#'));
    }
}

TEST(ReportPage, CarriesTheRecording) {
    const QByteArray recording = "{\n \"x\": \"<b> & \xE2\x80\xA8\"\n}\n";
    QString fault;
    const QByteArray html = renderReportPage(ReportData(), {}, recording);
    EXPECT_EQ(Recordings::pcInPage(html, fault).value_or("none").trimmed(),
              "{\n \"x\": \"\\u003cb\\u003e \\u0026 \\u2028\"\n}");
    EXPECT_EQ(fault, "");
}

TEST(ReportPage, SaysWhatBecameOfPrivateNames) {
    ReportData data;
    EXPECT_THAT(page(data), HasSubstr("None was known, so none is replaced."));
    EXPECT_THAT(page(data, {"", "", "", "", true}), HasSubstr("are kept, as was asked for."));
    data.neutralNames = QStringList{"user"};
    data.neutralFolders = QStringList{"user-2"};
    EXPECT_THAT(page(data),
                HasSubstr("One is now <q>user</q>.\nOne is now <q>user-2</q>, only where it is the name of a user's "
                          "folder.\n"));
}

TEST(ReportPage, TellsThatThereIsNothingToTell) {
    const std::string empty = page({});
    EXPECT_THAT(empty, HasSubstr("<p>The catalogue has none.</p>"));
    EXPECT_THAT(empty, HasSubstr("<p>Nothing.</p>"));
    EXPECT_EQ(count(empty, "hidden>No game matches."), 1) << "which would mean that the search hides some";
    EXPECT_EQ(count(empty, "hidden>Nothing matches."), 1);

    ReportData data;
    data.games.push_back(foundGame("Wal"));
    EXPECT_THAT(page(data), Not(HasSubstr("The catalogue has none.")));
}

TEST(ReportPage, TellsFaultsOrThatThereAreNone) {
    ReportData data;
    EXPECT_THAT(page(data), HasSubstr("<p>None: all that finders look at could be read.</p>"));
    data.faults = QStringList{"pc.json:3: x"};
    EXPECT_THAT(page(data), HasSubstr("<li><bdi>pc.json:3: x</bdi></li>"));
    EXPECT_THAT(page(data), Not(HasSubstr("could be read.")));
}

TEST(ReportPage, ShowsPicturesOfWhatCannotBeSeen) {
    EXPECT_EQ(withControlPictures(QString("a") + QChar(0) + QChar(0x1F) + QChar(0x7F) + QChar(0x85) + "\n"),
              QString::fromUtf8("a␀␟␡\uFFFD␊"));
    EXPECT_EQ(withControlPictures(QString(QChar(0x2028)) + QChar(0x2029)), QString::fromUtf8("␤␤"));
    EXPECT_EQ(withControlPictures(QString(QChar(0xD800)) + "x" + QChar(0xDC00)), QString::fromUtf8("\uFFFDx\uFFFD"));
    const QString harmless = QString::fromUtf8("競走 \U0001F600 \u202Ex é");
    EXPECT_EQ(withControlPictures(harmless), harmless);
}

} // namespace
