#include "core/FolderFinder.h"
#include "core/GameLocation.h"
#include "support/Logger.h"

#include "common/QtPrinters.h"
#include "core/Locations.h"

#include <QCoreApplication>
#include <QDir>

#include <gtest/gtest.h>

namespace {

TEST(CurrentFolder, IsWhatAnEmptyFolderMeans) {
    Logger logger = Logger::create("Test");
    GameLocation location = usedLocation();
    const QString program = QDir::current().relativeFilePath(QCoreApplication::applicationFilePath());
    EXPECT_TRUE(Finders::FolderFinder(&logger, "", {program}).find(location));
    EXPECT_EQ(location.installFolder, QDir::toNativeSeparators(QDir::currentPath()));
    location = usedLocation();
    EXPECT_FALSE(Finders::FolderFinder(&logger, "", {"no such program.exe"}).find(location));
    EXPECT_EQ(location, GameLocation()) << "it was searched like any other";
}

} // namespace
