#include "recordings/WindowsPath.h"

#include "common/QtPrinters.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <random>

namespace {

using Recordings::Path;

/// Paths put together at random from what makes paths difficult, the same ones each time.
class RandomPaths {
public:
    QString next(const QStringList& beginnings) {
        QString path = pick(beginnings);
        for (int i = below(5); i > 0; --i) {
            path += pick(names) + pick(separators);
        }
        return path + pick(ends);
    }

private:
    QString pick(const QStringList& texts) { return texts.at(below(texts.size())); }

    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }

    static const inline QStringList names{"a",  "Käfer", "競走",    "x.exe", "d.e", ".",
                                          "..", "..",    ".hidden", "..b",   "e."};
    static const inline QStringList separators{"/", "\\", "\\", "//", "/\\"};
    static const inline QStringList ends{"", "", "a", "x.exe", ".", "..", "b. ", "b."};

    std::mt19937 m_random{20261121};
};

/// With a drive, so that the answers don't depend on the current folder: that of drive C is its root.
const QStringList withDrive{"C:",
                            "C:/",
                            "C:\\",
                            "d:/",
                            "D:\\x\\",
                            "\\\\?\\C:\\",
                            "\\\\?\\D:",
                            "//?/C:/1/2/3/4/5/6/",
                            "\\\\.\\C:\\",
                            "//./c:/",
                            "c:/a/",
                            "//server/share/",
                            "\\\\server\\share\\a\\"};
const QStringList withAny = withDrive + QStringList{"",     "/",        "\\",           ".",  "..", "a",   "..\\",
                                                    "\\\\", "//server", "\\\\server\\", "1:", "?",  "C:C:"};

TEST(WindowsPath, ReadsAsQtDoes) {
    RandomPaths paths;
    for (int i = 0; i < 20000; ++i) {
        const QString path = paths.next(withAny);
        const Path ours(path);
        ASSERT_EQ(ours.text(), QDir::fromNativeSeparators(path)) << path.toStdString();
        ASSERT_EQ(ours.cleaned(), QDir::cleanPath(path)) << path.toStdString();
        ASSERT_EQ(ours.asFolder(), QDir(path).path()) << path.toStdString();
        ASSERT_EQ(Path::folderOf(ours.text()), QFileInfo(path).path()) << path.toStdString();
        ASSERT_EQ(ours.isRelative(), QFileInfo(path).isRelative()) << path.toStdString();
        ASSERT_EQ(Recordings::withBackslashes(path), QDir::toNativeSeparators(path)) << path.toStdString();
    }
}

TEST(WindowsPath, IsMadeAbsoluteAsQtDoes) {
    RandomPaths paths;
    for (int i = 0; i < 20000; ++i) {
        const QString path = paths.next(withDrive);
        const Path ours(path);
        ASSERT_EQ(ours.absolute('C'), QFileInfo(path).absoluteFilePath()) << path.toStdString();
        ASSERT_EQ(ours.absoluteFolder('C'), QDir(path).absolutePath()) << path.toStdString();
        const QString name = paths.next(withAny);
        ASSERT_EQ(ours.absoluteFile(name, 'C'), QDir(path).absoluteFilePath(name))
            << path.toStdString() << " + " << name.toStdString();
    }
}

} // namespace
