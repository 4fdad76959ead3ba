#include "core/UserProvidedLocationFinder.h"

#include "core/GameLocation.h"
#include "support/Logger.h"

#include "common/QtPrinters.h"

#include <QSettings>

#include <windows.h>

#include <gtest/gtest.h>

namespace {

TEST(UsersChoice, IsWhereTheHostKeepsItToo) {
    Logger logger = Logger::create("Test");
    QSettings host(QSettings::UserScope, "Veltrane", "Quorvan");
    Finders::UserProvidedLocationFinder finder(&logger, "K", {});
    finder.setUserLocation("D:\\X");
    EXPECT_EQ(host.value("UserProvidedLocations/K").toString(), "D:\\X");
    host.setValue("UserProvidedLocations/k", "D:\\Y");
    host.sync();
    EXPECT_EQ(finder.userLocation(), "D:\\Y");
    host.clear();
}

/// The host's key as one that goes with the session, below which Windows makes no key that stays.
class VolatileKey {
public:
    VolatileKey() {
        ::RegDeleteTreeW(HKEY_CURRENT_USER, path);
        ::RegCreateKeyExW(HKEY_CURRENT_USER, path, 0, nullptr, REG_OPTION_VOLATILE, KEY_ALL_ACCESS, nullptr, &m_key,
                          nullptr);
    }

    ~VolatileKey() {
        ::RegCloseKey(m_key);
        ::RegDeleteTreeW(HKEY_CURRENT_USER, path);
    }

private:
    Q_DISABLE_COPY_MOVE(VolatileKey)

    static constexpr const wchar_t* path = L"Software\\Veltrane\\Quorvan";
    HKEY m_key = nullptr;
};

TEST(UsersChoice, ThatCannotBeWrittenIsNoReasonToFail) {
    Logger logger = Logger::create("Test");
    Finders::UserProvidedLocationFinder finder(&logger, "K", {"x.exe"});
    {
        const VolatileKey key;
        finder.setUserLocation("D:\\X");
        EXPECT_EQ(finder.userLocation(), "") << "it was not written";
        GameLocation location;
        EXPECT_FALSE(finder.find(location));
        finder.setUserLocation("");
    }
    finder.setUserLocation("D:\\X");
    EXPECT_EQ(finder.userLocation(), "D:\\X");
    finder.setUserLocation("");
}

} // namespace
