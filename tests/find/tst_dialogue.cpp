#include "find/cli/Dialogue.h"

#include "common/QtPrinters.h"
#include "find/terminal/Console.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QStringList>

using namespace Find;

namespace {

/// A talk with a user who types one line: all that was said, and what was done, in its order.
class Talk {
public:
    explicit Talk(const QString& answer, const DialogueParts::Made& made = {"C:/Users/user/Desktop/r.html", "", {}},
                  bool canOpen = true) {
        DialogueParts parts;
        parts.say = [this](const QString& text) { said += text; };
        parts.readLine = [this, answer] {
            asked = said;
            done.append("read");
            return answer;
        };
        parts.makeReport = [this, made] {
            done.append("make");
            return made;
        };
        parts.open = [this, canOpen](const QString& file) {
            done.append("open " + file);
            return canOpen;
        };
        parts.waitForKey = [this] {
            EXPECT_TRUE(said.endsWith("\nPress any key to close this window.\n"));
            done.append("wait");
        };
        status = talk(parts);
    }

    QString said;
    QString asked; ///< what was said before the user typed
    QStringList done;
    ExitStatus status = failed;
};

TEST(Dialogue, SaysWhatIsReadAndWhatIsMadeBeforeItAsks) {
    const Talk talk("\n");
    for (const char* const words :
         {"What it reads: ", "which programs are installed", "What it makes: ", "one file on your Desktop",
          "Your name and the name of this PC are replaced", "Nothing is sent", "Press Enter to make the report."}) {
        EXPECT_TRUE(talk.asked.contains(words)) << words;
    }
}

TEST(Dialogue, EnterMakesTheReportAndShowsIt) {
    for (const char* const answer : {"\n", "\r\n", "y\r\n", "Yes\n", " ja \n"}) {
        const Talk talk(answer);
        EXPECT_EQ(talk.done, (QStringList{"read", "make", "open C:/Users/user/Desktop/r.html", "wait"})) << answer;
        EXPECT_EQ(talk.status, allFound);
        EXPECT_TRUE(talk.said.contains("\n    r.html\n")) << talk.said.toStdString();
        EXPECT_TRUE(talk.said.contains("in the folder " + QDir::toNativeSeparators("C:/Users/user/Desktop")));
        EXPECT_TRUE(talk.said.contains("Your browser shows it now."));
        EXPECT_TRUE(talk.said.contains("attach the file to a mail to whoever asked you for it"));
    }
}

TEST(Dialogue, NoMakesNothing) {
    for (const char* const answer : {"n\r\n", "N\n", "stop\n", "exit\r\n", "\x1a\r\n", ""}) {
        const Talk talk(answer);
        EXPECT_EQ(talk.done, (QStringList{"read", "wait"})) << answer;
        EXPECT_EQ(talk.status, allFound);
        EXPECT_TRUE(talk.said.contains("\nNothing was read, and no file was made.\n"));
    }
}

TEST(Dialogue, ABrowserThatDoesNotOpenIsNoFault) {
    const Talk talk("\n", {"C:/r.html", "", {}}, false);
    EXPECT_EQ(talk.status, allFound);
    EXPECT_TRUE(talk.said.contains("A double click on the file shows it in your browser."));
}

TEST(Dialogue, AFaultStaysOnTheScreen) {
    const Talk talk("\n", {"", "the disk is full", {}});
    EXPECT_EQ(talk.done, (QStringList{"read", "make", "wait"}));
    EXPECT_EQ(talk.status, failed);
    EXPECT_TRUE(talk.said.contains("The report could not be made. This is why:\n\n    the disk is full\n"));
    EXPECT_FALSE(talk.said.contains("ready"));
}

TEST(Dialogue, TellsWhatIsMissingInTheReport) {
    const Talk talk("\n", {"C:/r.html", "", {"not recorded: C:/x", "Al is too short a name"}});
    EXPECT_TRUE(talk.said.contains("\nPlease note:\n\n    not recorded: C:/x\n    Al is too short a name\n"));
    EXPECT_FALSE(Talk("\n").said.contains("Please note"));
}

TEST(Dialogue, FitsTheWindow) {
    const Talk good("\n");
    const Talk bad("\n", {"", "x", {}});
    for (const QString& line : (good.said + bad.said).split('\n')) {
        EXPECT_LE(line.size(), 78) << line.toStdString();
    }
    EXPECT_LE(good.asked.count('\n'), 16) << "a few lines, which nobody has to scroll for";
}

TEST(Dialogue, IsForAWindowOfItsOwnOnly) {
    EXPECT_FALSE(Console::isOwnWindow()) << "as the tests write to pipes and files";
}

} // namespace
