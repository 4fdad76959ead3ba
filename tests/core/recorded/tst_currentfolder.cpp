#include "core/FolderFinder.h"
#include "core/GameLocation.h"
#include "support/Logger.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "core/Locations.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

/// On a recorded PC nobody knows the current folder, and that of whoever replays it is not on it.
class CurrentFolder : public ::testing::TestWithParam<const char*> {};

TEST_P(CurrentFolder, IsNotThere) {
    const TestPc pc;
    Logger logger = Logger::create("Test");
    const QString program = QCoreApplication::applicationFilePath();
    const QString before = QDir::currentPath();
    QDir::setCurrent(QFileInfo(program).path());
    GameLocation location = usedLocation();
    EXPECT_FALSE(Finders::FolderFinder(&logger, GetParam(), {QFileInfo(program).fileName(), program}).find(location));
    EXPECT_EQ(location, usedLocation());
    QDir::setCurrent(before);
}

INSTANTIATE_TEST_SUITE_P(Recorded, CurrentFolder, ::testing::Values("", ".", ".."));

} // namespace
