#include "common/QtPrinters.h"
#include "common/recorded/FileLimit.h"
#include "find/record/OutputFile.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

namespace {

TEST(OnADiskThatFillsUp, NoFileAppears) {
    const QTemporaryDir folder;
    const QString name = folder.filePath("pc.json");
    for (const int size : {5'000, 10'000, 100'000}) {
        QString fault;
        Find::OutputFile file(name, QLatin1String(".json"), fault);
        const FileLimit limit(4'096);
        EXPECT_EQ(file.write(QByteArray(size, 'x')), name + ": the file cannot be written: File too large") << size;
        EXPECT_TRUE(QDir(folder.path()).isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot)) << size;
    }
}

} // namespace
