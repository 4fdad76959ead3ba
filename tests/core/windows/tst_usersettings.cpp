#include "core/UserProvidedLocationFinder.h"
#include "support/Logger.h"

#include "common/QtPrinters.h"

#include <QSettings>

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

} // namespace
