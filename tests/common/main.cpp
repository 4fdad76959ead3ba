#include <QCoreApplication>
#include <QTextCodec>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    // Under the locale "C" Qt would lose every letter outside ASCII in the names of files.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
