#include "allocation/FailingAllocation.h"
#include "allocation/SystemMemory.h"
#include "core/plugin/FindersFactory.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "common/TraceLog.h"
#include "platform/Folders.h"
#include "support/RegistryKey.h"

#include <gtest/gtest.h>

#include <memory>
#include <new>

namespace {

/// A PC whose one game only the last of several finders finds, after all of them have looked. (Not the user's choice:
/// Qt's settings themselves crash when memory runs out.)
class TracedSearch : public ::testing::Test {
protected:
    TracedSearch() {
        const TestKey uninstall{Platform::RootKey::CurrentUser,
                                "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Luruludri Test",
                                View::view64};
        m_pc.value(uninstall, "DisplayName", "Other game");
        m_pc.shellFolder(Platform::csidlStartMenu, "C:\\Menu");
        m_pc.folder("C:\\Menu\\Games");
        m_pc.shortcut("C:\\Menu\\Käfer.lnk", "D:\\Käfer\\kaefer.exe");
        m_pc.file("C:\\Menu\\desktop.ini");
        m_pc.hide("C:\\Menu\\desktop.ini");
        m_pc.file("D:\\Käfer\\kaefer.exe");
    }

    static QString search() {
        Finders::FindersFactory factory;
        const QStringList executables{"kaefer.exe"};
        const std::unique_ptr<IGameFinder> finder =
            factory.createMultiFinder(factory.createFolderFinder("C:\\missing", executables),
                                      factory.createUninstallFinder("Käfer", executables, 0),
                                      factory.createUniversalAppFinder("Luruludri.Test_abc"),
                                      factory.createStartMenuFinder("Käfer", executables, 0), nullptr, nullptr, nullptr,
                                      nullptr, nullptr, nullptr, nullptr);
        GameLocation location;
        return finder->find(location) ? location.launchCommand : QString("not found");
    }

    /// Searches with the first, second, third … allocation failing, until there are no more of them, and checks each
    /// answer. Returns how many searches ended with std::bad_alloc.
    template <class MakeTrace>
    static int searchWithEachAllocationFailing(MakeTrace makeTrace) {
        int exceptions = 0;
        bool hasFailed = true;
        for (int countdown = 0; hasFailed; ++countdown) {
            [[maybe_unused]] const auto trace = makeTrace();
            SystemMemory::run([&] {
                const FailingAllocation failing(countdown);
                try {
                    EXPECT_EQ(search(), "D:/Käfer/kaefer.exe") << "after allocation " << countdown;
                } catch (const std::bad_alloc&) {
                    ++exceptions;
                }
                hasFailed = failing.hasFailed();
            });
        }
        return exceptions;
    }

private:
    TestPc m_pc;
};

TEST_F(TracedSearch, WithoutMemoryForItsTraceGoesOn) {
    { // what Qt and the C++ library keep for themselves is made now
        const TraceLog trace;
        EXPECT_EQ(search(), "D:/Käfer/kaefer.exe");
        EXPECT_GT(trace.events().size(), 20U);
    }
    const int exceptions = searchWithEachAllocationFailing([] { return nullptr; });
    const int exceptionsWhenTraced = searchWithEachAllocationFailing([] { return std::make_unique<TraceLog>(); });
    EXPECT_GE(exceptions, 3);
    EXPECT_EQ(exceptionsWhenTraced, exceptions) << "the trace is no reason of its own to fail";
    EXPECT_TRUE(FailingAllocation::nothingLeaked());
}

} // namespace
