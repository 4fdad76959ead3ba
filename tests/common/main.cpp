#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTextCodec>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    // Under the locale "C" Qt would lose every letter outside ASCII in the names of files.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    // So that tests leave the user's own settings alone; on Windows, settings are in the registry that tests run on.
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
