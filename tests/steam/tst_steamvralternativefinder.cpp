#include "steam/SteamVrAlternativeFinder.h"

#include "support/RegistryKey.h"

#include "common/QtPrinters.h"
#include "common/TraceLog.h"
#include "core/FinderTest.h"
#include "platform/Registry.h"
#include "steam/MessageLog.h"

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QString steamVr = "C:\\Program Files (x86)\\Steam\\steamapps\\common\\SteamVR\\";
const QString server = steamVr + "bin\\win64\\vrserver.exe";

class SteamVrAlternativeFinderTest : public FinderTest {
protected:
    void registerCommand(const QString& scheme, const QString& command) {
        pc.value({Platform::RootKey::ClassesRoot, scheme + "\\Shell\\Open\\Command", View::view32}, "", command);
    }

    void install() {
        pc.file(server);
        registerCommand("vrmonitor", monitor);
    }

    Answer find() { return ask(Finders::SteamVrAlternativeFinder(&logger)); }

    /// The same for a location that is new, which it does not reset.
    Answer findFromScratch() {
        Answer answer;
        answer.found = Finders::SteamVrAlternativeFinder(&logger).find(answer.location);
        return answer;
    }

    const MessageLog log;
    const QString monitor = '"' + steamVr + "bin\\win64\\vrmonitor.exe\" \"%1\"";
};

TEST_F(SteamVrAlternativeFinderTest, FindsSteamVrByItsMonitor) {
    install();
    registerCommand("steamvr", "\"C:\\Steam\\steam.exe\" \"%1\"");
    EXPECT_EQ(findFromScratch(), foundIn(steamVr, {server}));
    EXPECT_THAT(log.messages(), ElementsAre("info: VrUrlHandler Path: \"C:\\Steam\\steam.exe\" \"%1\"",
                                            "info: VrMonitor Path: " + monitor));
    EXPECT_THAT(pc.messages("Test"), IsEmpty()) << "nothing goes to the finders' log";
}

TEST_F(SteamVrAlternativeFinderTest, The32BitMonitorLeadsToThe64BitServer) {
    pc.file(server);
    registerCommand("vrmonitor", '"' + steamVr + "bin\\win32\\vrmonitor.exe\" \"%1\"");
    EXPECT_EQ(findFromScratch(), foundIn(steamVr, {server}));
}

TEST_F(SteamVrAlternativeFinderTest, The32BitMonitorIsLookedForFirst) {
    pc.file("C:\\A\\bin\\win64\\vrserver.exe");
    registerCommand("vrmonitor", "C:\\A\\bin\\win64\\vrmonitor.exe C:\\B\\bin\\win32\\vrmonitor.exe");
    EXPECT_FALSE(find()) << "the folder ends before it, wherever it stands";
    registerCommand("vrmonitor", "C:\\A\\bin\\win32\\vrmonitor.exe C:\\B\\bin\\win32\\vrmonitor.exe");
    EXPECT_TRUE(find()) << "the first of two";
    EXPECT_EQ(location.installFolder, "C:\\A\\");
}

TEST_F(SteamVrAlternativeFinderTest, AnUnquotedCommandIsTakenAsWell) {
    pc.file(server);
    registerCommand("vrmonitor", steamVr + "bin\\win64\\vrmonitor.exe %1");
    EXPECT_TRUE(find());
    EXPECT_EQ(location.installFolder, steamVr);
}

TEST_F(SteamVrAlternativeFinderTest, WithoutAMonitorNothingIsFound) {
    EXPECT_EQ(find(), leftAlone());
    EXPECT_THAT(log.messages(), ElementsAre("info: VrUrlHandler Path: ", "info: VrMonitor Path: "));
}

TEST_F(SteamVrAlternativeFinderTest, TheMonitorsNameRespectsCase) {
    pc.file(server);
    const TraceLog trace;
    for (const char* name : {"bin\\Win64\\vrmonitor.exe", "bin/win64/vrmonitor.exe", "bin\\win64\\vrmonitor", ""}) {
        registerCommand("vrmonitor", '"' + steamVr + name + "\" \"%1\"");
        EXPECT_EQ(find(), leftAlone()) << name;
    }
    EXPECT_EQ(trace.texts("exists", "path"), QStringList()) << "no server is looked for";
}

TEST_F(SteamVrAlternativeFinderTest, WithoutTheServerNothingIsFound) {
    pc.file(steamVr + "bin\\win32\\vrserver.exe");
    registerCommand("vrmonitor", monitor);
    EXPECT_EQ(find(), leftAlone());
}

TEST_F(SteamVrAlternativeFinderTest, AMonitorOfTheMakersOwnIsRejected) {
    pc.file("C:\\VelTrane\\bin\\win64\\vrserver.exe");
    const QString ownMonitor = "\"C:\\VelTrane\\bin\\win64\\vrmonitor.exe\" \"%1\"";
    registerCommand("vrmonitor", ownMonitor);
    EXPECT_EQ(find(), leftAlone());
    EXPECT_THAT(log.messages(),
                ElementsAre("info: VrUrlHandler Path: ", "critical: VrMonitor Incorrect Path: " + ownMonitor));
}

TEST_F(SteamVrAlternativeFinderTest, TheUrlHandlerOnlyServesTheLog) {
    install();
    registerCommand("steamvr", "C:\\veltrane\\handler.exe");
    EXPECT_TRUE(find());
    EXPECT_EQ(log.messages().first(), "critical: VrUrlHandler Incorrect Path: C:\\veltrane\\handler.exe");
}

TEST_F(SteamVrAlternativeFinderTest, AddsToALocationWithoutResettingIt) {
    install();
    EXPECT_TRUE(find());
    EXPECT_EQ(location, (GameLocation{"steam://launch/1",
                                      "C:\\Old\\old.exe",
                                      {"C:\\Old\\old.exe", "C:\\Old\\other.exe", server},
                                      steamVr,
                                      true}));
}

TEST_F(SteamVrAlternativeFinderTest, OneQuoteGoesAndNoMore) {
    pc.file(server);
    registerCommand("vrmonitor", "\"\"" + steamVr + "bin\\win64\\vrmonitor.exe\"");
    EXPECT_FALSE(find());
    registerCommand("vrmonitor", " \"" + steamVr + "bin\\win64\\vrmonitor.exe\"");
    EXPECT_FALSE(find()) << "a blank before it keeps the quote";
}

TEST_F(SteamVrAlternativeFinderTest, ACommandThatBeginsWithTheMonitorHasAnEmptyFolder) {
    for (const char* command : {"bin\\win64\\vrmonitor.exe", "\"bin\\win64\\vrmonitor.exe\"",
                                "bin\\win32\\vrmonitor.exe", "\"bin\\win32\\vrmonitor.exe\""}) {
        const TraceLog trace;
        registerCommand("vrmonitor", command);
        EXPECT_FALSE(find()) << command;
        EXPECT_EQ(trace.texts("exists", "path"), QStringList("bin\\win64\\vrserver.exe")) << command;
    }
}

TEST_F(SteamVrAlternativeFinderTest, KeepsNoUserLocation) {
    Finders::SteamVrAlternativeFinder finder(&logger);
    finder.setUserLocation("D:\\Elsewhere");
    EXPECT_EQ(finder.userLocation(), "");
    EXPECT_FALSE(finder.userLocation().isNull());
}

} // namespace
