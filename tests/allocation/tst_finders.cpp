#include "allocation/FailingAllocation.h"
#include "allocation/SystemMemory.h"
#include "core/GameLocation.h"

#include "common/EpicLauncher.h"
#include "common/Games.h"
#include "common/OculusStore.h"
#include "common/PluginUnderTest.h"
#include "common/Programs.h"
#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "common/TraceLog.h"
#include "platform/Folders.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <new>
#include <optional>
#include <ostream>
#include <utility>

namespace {

using Finder = std::unique_ptr<IGameFinder>;

const QStringList executables{"kaefer.exe"};

/// What an answer takes besides memory.
enum class Needs {
    nothing,
    settings, ///< Qt's, which crash without memory
    system,   ///< functions that tell a lack of memory as they tell that there is nothing
    index     ///< made once a factory, or as much of it as there is memory for
};

/// One thing that a host asks of a factory, and the answer on the tests' PC.
struct Question {
    const char* name;
    std::function<void(IGameFinderFactory&, GameLocation&)> ask;
    const char* answer;
    Needs needs = Needs::nothing;
};

std::ostream& operator<<(std::ostream& stream, const Question& question) {
    return stream << question.name;
}

/// A question for a game.
template <class Make>
auto game(Make make) {
    return [make](IGameFinderFactory& factory, GameLocation& location) { make(factory)->find(location); };
}

/// A question for one path.
auto path(QString (IGameFinderFactory::*locate)()) {
    return
        [locate](IGameFinderFactory& factory, GameLocation& location) { location.launchCommand = (factory.*locate)(); };
}

const Question questions[] = {
    {"Folder", game([](auto& f) { return f.createFolderFinder("D:\\Käfer", executables); }), "D:\\Käfer\\kaefer.exe"},
    {"Uninstall", game([](auto& f) { return f.createUninstallFinder("käfer", executables, 0); }),
     "D:\\Käfer\\kaefer.exe", Needs::index},
    {"GameForWindow", game([](auto& f) { return f.createGameForWindowFinder("Käfer", executables); }),
     "D:\\Käfer\\kaefer.exe", Needs::index},
    {"StartMenu", game([](auto& f) { return f.createStartMenuFinder("KÄF", executables, 1); }), "D:/Käfer/kaefer.exe",
     Needs::index},
    {"SteamByUninstall", game([](auto& f) { return f.createSteamFinder("1", "Käfer", executables); }),
     "steam://launch/1", Needs::index},
    {"SteamByLibrary", game([](auto& f) { return f.createSteamFinder("2", "Käfer", executables); }), "steam://launch/2",
     Needs::index},
    {"EpicStore", game([](auto& f) { return f.createEpicStoreFinder("Käfer", executables, 0); }),
     "com.epicgames.launcher://apps/space%3Aitem%3AKiwi?action=launch&silent=true", Needs::index},
    {"OculusStore", game([](auto& f) { return f.createOculusStoreFinder("3", executables, "Käfer"); }),
     "D:/Oculus/Software/Käfer\\kaefer.exe", Needs::index},
    {"UniversalApp", game([](auto& f) { return f.createUniversalAppFinder("Luruludri.Test_abc"); }), nullptr,
     Needs::system},
    {"UserProvidedLocation", game([](auto& f) { return f.createUserProvidedLocationFinder("mine", executables); }),
     "D:/Käfer\\kaefer.exe", Needs::settings},
    {"Multi", game([](auto& f) {
         return f.createMultiFinder(f.createFolderFinder("C:\\missing", executables),
                                    f.createUniversalAppFinder("Luruludri.Other_abc"), nullptr, nullptr, nullptr,
                                    nullptr, nullptr, nullptr, nullptr, nullptr,
                                    f.createFolderFinder("D:\\Käfer", executables));
     }),
     "D:\\Käfer\\kaefer.exe"},
    {"MultiThatTheUsersChoiceEnds", game([](auto& f) {
         return f.createMultiFinder(f.createUserProvidedLocationFinder("gone", executables),
                                    f.createFolderFinder("D:\\Käfer", executables), nullptr, nullptr, nullptr, nullptr,
                                    nullptr, nullptr, nullptr, nullptr, nullptr);
     }),
     "", Needs::settings},
    {"OculusLibraries",
     [](IGameFinderFactory& f, GameLocation& location) { location.launchCommand = f.oculusLibraryFolders().join('|'); },
     "D:/Oculus/Manifests"},
    {"OculusRuntime", path(&IGameFinderFactory::oculusRuntimeFolder), "C:\\Oculus/Support/oculus-runtime"},
    {"SteamExecutable", path(&IGameFinderFactory::steamExecutablePath), "C:\\Steam\\steam.exe"},
    {"SteamConfig", path(&IGameFinderFactory::steamConfigFolder), "C:/Steam/config"},
    {"VarjoRuntime", path(&IGameFinderFactory::varjoRuntimeFolder), "C:\\Varjo"},
    {"OpenXrRuntime", path(&IGameFinderFactory::openXrActiveRuntime), "C:\\xr.json"},
    {"Lumavex", path(&IGameFinderFactory::lumavexStandaloneLocation), "C:\\Lumavex"},
    {"SteamVr", path(&IGameFinderFactory::steamVrFolder), "C:\\SteamVR", Needs::index},
};

class WithoutMemoryTest : public ::testing::TestWithParam<Question> {
protected:
    WithoutMemoryTest() {
        using Platform::RootKey;
        m_pc.file("D:\\Käfer\\kaefer.exe");
        addProgram(m_pc, {"Luruludri Test", "Käfer", "D:\\Käfer", {}});
        addProgram(m_pc, {"Steam App 1", "On Steam", "D:\\Käfer", "steam.exe"});
        addGame(m_pc, {"1", "Käfer", "D:\\Käfer\\kaefer.exe", {}});
        m_pc.shellFolder(Platform::csidlStartMenu, "C:\\Menu");
        m_pc.folder("C:\\Menu\\Games");
        m_pc.shortcut("C:\\Menu\\Käfer.lnk", "D:\\Käfer\\kaefer.exe");
        m_pc.value({RootKey::ClassesRoot, "steam\\Shell\\Open\\Command", View::view32}, "",
                   "\"C:\\Steam\\steam.exe\" -- \"%1\"");
        m_pc.file("C:\\Steam\\steam.exe");
        m_pc.file("C:\\Steam\\steamapps\\appmanifest_2.acf");
        m_pc.file("C:\\Steam\\steamapps\\common\\Käfer\\kaefer.exe");
        addEpicApp(m_pc, "1.item", {"Kiwi", "Käfer", "D:\\Käfer"});
        makeOculusFolders(m_pc, "D:\\Oculus");
        addOculusLibrary(m_pc, "{1}", "D:\\Oculus");
        m_pc.file("D:\\Oculus\\Manifests\\3.json.mini");
        m_pc.file("D:\\Oculus\\Software\\Käfer\\kaefer.exe");
        m_pc.userChoice("mine", "D:/Käfer");
        m_pc.userChoice("gone", "D:/Gone");
        m_pc.environment("OculusBase", "C:\\Oculus");
        m_pc.file("C:\\Oculus\\Support\\oculus-runtime\\LibOVRRT64_1.dll");
        m_pc.value({RootKey::LocalMachine, "Software\\Varjo\\Runtime"}, "InstallDir", "C:\\Varjo");
        m_pc.value({RootKey::LocalMachine, "Software\\Khronos\\OpenXR\\1"}, "ActiveRuntime", "C:\\xr.json");
        m_pc.value({RootKey::CurrentUser, QString("Software\\Lumavex ") + QChar(0x0096) + " Standalone"}, "",
                   "C:\\Lumavex");
        m_pc.value({RootKey::ClassesRoot, "vrmonitor\\Shell\\Open\\Command", View::view32}, "",
                   "\"C:\\SteamVR\\bin\\win64\\vrmonitor.exe\" \"%1\"");
        m_pc.file("C:\\SteamVR\\bin\\win64\\vrserver.exe");
        const bool hasPackages = m_pc.package("Luruludri.Test_abc", "Luruludri.Test_1_abc", "Käfer!App");
        m_answer = GetParam().answer != nullptr ? GetParam().answer : hasPackages ? "uapp://Käfer!App" : "";
        // What Qt, the C++ library and the system keep for themselves is made now.
        const TraceLog trace;
        EXPECT_EQ(ask(*plugin().create()), m_answer);
        EXPECT_FALSE(trace.events().empty());
        const FailingAllocation failing(0);
        EXPECT_THROW(plugin().create(), std::bad_alloc);
    }

    static QString ask(IGameFinderFactory& factory) {
        GameLocation location;
        GetParam().ask(factory, location);
        return location.launchCommand;
    }

    /// Asks with the first, second, third … allocation failing, until there are no more of them: each time what
    /// `factoryToAsk` makes, which `during` gets while the allocation may still fail, and `afterwards` when there is
    /// memory again. An answer must be the right one. Returns how often there was none but std::bad_alloc.
    template <class MakeFactory, class During, class Afterwards>
    int failEachAllocation(bool isTraced, MakeFactory factoryToAsk, During during, Afterwards afterwards) {
        int exceptions = 0;
        bool hasFailed = true;
        long blocks = 0;
        int leaks = 0;
        SystemMemory::spareQt(GetParam().needs == Needs::settings);
        for (int countdown = 0; hasFailed; ++countdown) {
            SCOPED_TRACE(countdown);
            {
                const auto trace = isTraced ? std::make_unique<TraceLog>() : nullptr;
                auto factory = factoryToAsk();
                SystemMemory::run([&] {
                    const auto [answer, failing] = askFailing(factory, countdown, during);
                    hasFailed = failing;
                    exceptions += answer ? 0 : 1;
                    EXPECT_TRUE(!answer || isRight(*answer, GetParam().needs == Needs::system))
                        << answer->toStdString();
                });
                afterwards(factory);
            }
            leaks += countdown > 0 && SystemMemory::blocks() != blocks ? 1 : 0;
            blocks = SystemMemory::blocks();
        }
        EXPECT_EQ(leaks, 0);
        return exceptions;
    }

    /// The answer, if there is one, and whether the allocation failed.
    template <class Factory, class During>
    static std::pair<std::optional<QString>, bool> askFailing(Factory& factory, int countdown, During during) {
        GameLocation location;
        std::optional<QString> answer;
        const FailingAllocation failing(countdown);
        try {
            GetParam().ask(*factory, location);
            answer = location.launchCommand;
        } catch (const std::bad_alloc&) {
        }
        during(factory);
        return {answer, failing.hasFailed()};
    }

    /// Whether it is the answer, or nothing where there may be none.
    bool isRight(const QString& answer, bool mayBeNothing) const {
        return answer == m_answer || (mayBeNothing && answer.isEmpty());
    }

    const QString& answer() const { return m_answer; }

    /// Never unloaded, as a leak checker knows what is loaded only.
    static const PluginUnderTest& plugin() {
        static const PluginUnderTest* const loaded = new PluginUnderTest;
        return *loaded;
    }

private:
    TestPc m_pc;
    QString m_answer;
};

TEST_P(WithoutMemoryTest, ASearchFailsOrIsRightAndItsFactoryCanBeDestroyed) {
    const auto fail = [this](bool isTraced) {
        return failEachAllocation(
            isTraced, [] { return plugin().create(); }, [](auto& factory) { factory.reset(); }, [](auto&) {});
    };
    const int exceptions = fail(false);
    EXPECT_GE(exceptions, 1) << "does the plug-in allocate by the test's functions?";
    EXPECT_EQ(fail(true), exceptions) << "the trace is no reason of its own to fail";
    EXPECT_TRUE(FailingAllocation::nothingLeaked());
}

TEST_P(WithoutMemoryTest, TheNextSearchOfTheSameFactoryIsRight) {
    const std::shared_ptr<IGameFinderFactory> searched = plugin().create();
    EXPECT_EQ(ask(*searched), answer());
    for (const bool isTraced : {false, true}) {
        failEachAllocation(
            isTraced, [] { return plugin().create(); }, [](auto&) {},
            [this](auto& factory) { EXPECT_TRUE(isRight(ask(*factory), GetParam().needs == Needs::index)); });
        failEachAllocation(
            isTraced, [&searched] { return searched; }, [](auto&) {},
            [this](auto& factory) { EXPECT_EQ(ask(*factory), answer()); });
    }
    EXPECT_TRUE(FailingAllocation::nothingLeaked());
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Of, WithoutMemoryTest, ::testing::ValuesIn(questions),
                         [](const auto& question) { return std::string(question.param.name); });
