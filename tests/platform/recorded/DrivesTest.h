#pragma once

#include "common/recorded/RecordingFolder.h"

#include <gtest/gtest.h>

/// A recorded PC with a few files and folders.
class DrivesTest : public ::testing::Test {
protected:
    DrivesTest() {
        pc.file("drives/C/Games/Käfer/Käfer.exe", "12345");
        pc.file("drives/C/Games/readme.txt", "hello");
        pc.folder("drives/C/Games/Empty");
        pc.folder("drives/D");
        pc.choose();
    }

    RecordingFolder pc;
};
