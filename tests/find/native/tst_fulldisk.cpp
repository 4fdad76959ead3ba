#include "common/QtPrinters.h"
#include "find/record/OutputFile.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>

namespace {

/// Lets no file become larger, as long as it lives: as a disk that fills up, it takes a part of what is written.
class FileLimit {
public:
    explicit FileLimit(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }

    ~FileLimit() {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    Q_DISABLE_COPY_MOVE(FileLimit)

    rlimit m_before = {};
    void (*const m_handler)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

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
