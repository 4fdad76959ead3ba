#include "core/plugin/FindersFactory.h"

#include "common/OculusStore.h"
#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "common/TraceLog.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstddef>

namespace {

using ::testing::ElementsAre;

/// Where the library looks in the registry. Windows shares many keys between its two views, so that a wrong one shows
/// only where the other has an entry of its own, or to who reads the trace.
class RegistryPlacesTest : public ::testing::Test {
protected:
    /// The keys that were opened since the last call, each once: "64 HKEY_CURRENT_USER\Software\X". The loggers' own
    /// are left out.
    QStringList opened() {
        const std::vector<QJsonObject> keys = m_trace.events("key");
        QStringList places;
        for (; m_seen < keys.size(); ++m_seen) {
            const QJsonObject& key = keys[m_seen];
            places.append(
                QString("%1 %2\\%3").arg(key["view"].toInt()).arg(key["root"].toString(), key["key"].toString()));
        }
        places.removeDuplicates();
        places.erase(std::remove_if(places.begin(), places.end(),
                                    [](const QString& place) { return place.contains("\\Veltrane\\"); }),
                     places.end());
        return places;
    }

    static void find(const std::unique_ptr<IGameFinder>& finder) {
        GameLocation location;
        EXPECT_FALSE(finder->find(location));
    }

    const QStringList steamClientPlaces{
        "32 HKEY_CLASSES_ROOT\\steam\\Shell\\Open\\Command", "64 HKEY_CLASSES_ROOT\\steam\\Shell\\Open\\Command",
        "32 HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Steam",
        "64 HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Steam"};
    TestPc pc;

private:
    TraceLog m_trace;
    std::size_t m_seen = 0;
};

TEST_F(RegistryPlacesTest, OfTheFinders) {
    addOculusLibrary(pc, "One", "D:\\None");
    Finders::FindersFactory factory;
    find(factory.createUninstallFinder("Kiwi", {"k.exe"}, 0));
    EXPECT_THAT(opened(), ElementsAre("32 HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall",
                                      "32 HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall",
                                      "64 HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall",
                                      "64 HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall"));
    find(factory.createGameForWindowFinder("Kiwi", {"k.exe"}));
    EXPECT_THAT(opened(),
                ElementsAre("32 HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\GameUX\\Games",
                            "64 HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\GameUX\\Games"));
    find(factory.createSteamFinder("7", "Kiwi", {"k.exe"}));
    EXPECT_EQ(opened(), steamClientPlaces);
    find(factory.createOculusStoreFinder("7", {"k.exe"}, "kiwi"));
    EXPECT_THAT(opened(), ElementsAre("64 HKEY_CURRENT_USER\\Software\\Oculus VR, LLC\\Oculus\\Libraries",
                                      "64 HKEY_CURRENT_USER\\Software\\Oculus VR, LLC\\Oculus\\Libraries\\One"));
    find(factory.createEpicStoreFinder("Kiwi", {"k.exe"}, 0));
    EXPECT_THAT(opened(), ElementsAre("64 HKEY_CURRENT_USER\\Software\\Epic Games\\EOS"));
}

TEST_F(RegistryPlacesTest, OfTheLocators) {
    Finders::FindersFactory factory;
    factory.oculusLibraryFolders();
    EXPECT_THAT(opened(), ElementsAre("64 HKEY_CURRENT_USER\\Software\\Oculus VR, LLC\\Oculus\\Libraries"));
    factory.steamExecutablePath();
    EXPECT_EQ(opened(), steamClientPlaces);
    factory.varjoRuntimeFolder();
    EXPECT_THAT(opened(), ElementsAre("64 HKEY_LOCAL_MACHINE\\Software\\Varjo\\Runtime"));
    factory.openXrActiveRuntime();
    EXPECT_THAT(opened(), ElementsAre("64 HKEY_LOCAL_MACHINE\\Software\\Khronos\\OpenXR\\1"));
    factory.lumavexStandaloneLocation();
    EXPECT_THAT(opened(),
                ElementsAre(QString("64 HKEY_CURRENT_USER\\Software\\Lumavex ") + QChar(0x96) + " Standalone"));
    factory.steamVrFolder();
    EXPECT_EQ(opened().mid(8), (QStringList{"32 HKEY_CLASSES_ROOT\\steamvr\\Shell\\Open\\Command",
                                            "32 HKEY_CLASSES_ROOT\\vrmonitor\\Shell\\Open\\Command"}))
        << "after the places of programs and of the Steam client";
}

} // namespace
