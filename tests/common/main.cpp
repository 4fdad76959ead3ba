#include "common/TestPc.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTextCodec>

#include <gtest/gtest.h>

#include <cstdio>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (!TestPc::mayBeChanged()) {
        std::fputs("The tests write to the registry and the drives of the PC that they run on, and delete there.\n"
                   "Set LURULUDRI_TESTS_MAY_CHANGE_PC to 1 on a PC that can be thrown away.\n",
                   stderr);
        return 2;
    }
    // Under the locale "C" Qt would lose every letter outside ASCII in the names of files.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    // So that tests leave the user's own settings alone; on Windows, settings are in the registry that tests run on.
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
