#include "support/RegistryKey.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "platform/Registry.h"

#include <gtest/gtest.h>

namespace {

// The recorded registry's own tests have as many.
TEST(ManyKeys, TwentyThousandSubKeysAreListedOnceEach) {
    TestPc pc;
    const QString path = "Software\\ManyKeys";
    QStringList expected;
    for (int i = 10'000; i < 30'000; ++i) {
        expected.append(QString::number(i));
        pc.key({Platform::RootKey::CurrentUser, path + '\\' + expected.last(), View::view64});
    }
    QStringList names;
    EXPECT_TRUE(RegistryKey::open(path, Hive::currentUser, View::view64).subKeyNames(names));
    names.sort();
    EXPECT_EQ(names, expected);
}

} // namespace
