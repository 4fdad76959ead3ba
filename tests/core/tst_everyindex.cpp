#include "common/AtOnce.h"
#include "common/EveryIndex.h"
#include "common/PcTest.h"
#include "common/QtPrinters.h"

#include <QDir>

#include <gtest/gtest.h>

namespace {

/// What is so of every index.
template <class Index>
class EveryIndexTest : public PcTest {
protected:
    void expectOneBuild() const {
        for (const QString& log : QDir(pc.logFolder()).entryList({"*.log"}, QDir::Files)) {
            EXPECT_EQ(pc.log(QString(log).remove(".log")).count("LOG CREATED"), 1) << log.toStdString();
        }
    }

    Index index;
};

TYPED_TEST_SUITE(EveryIndexTest, EveryIndex);

TYPED_TEST(EveryIndexTest, IsBuiltOnceWhateverIsInstalledLater) {
    EXPECT_EQ(found(this->index, gameNamed(1)), 0);
    installForEveryIndex(this->pc, gameNamed(1));
    EXPECT_EQ(found(this->index, gameNamed(1)), 0);
    EXPECT_TRUE(this->index.entries().empty());
    this->expectOneBuild();

    TypeParam later;
    EXPECT_EQ(found(later, gameNamed(1)), 1);
}

TYPED_TEST(EveryIndexTest, ThreadsThatAskAtOnceWaitForOneBuild) {
    for (int i = 0; i < 20; ++i) {
        installForEveryIndex(this->pc, gameNamed(i));
    }
    std::atomic<int> complete{0};
    callAtOnce(
        [&] { complete += found(this->index, gameNamed(7)) == 1 && this->index.entries().size() == 20 ? 1 : 0; });
    EXPECT_EQ(complete, 16);
    this->expectOneBuild();
}

} // namespace
