#include "catalogue/UninstallIndex.h"

#include "common/QtPrinters.h"
#include "support/scripted/ScriptedSystem.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstring>

namespace {

using ::testing::ElementsAre;

/// A key with three programs, of which the second is deleted once it was listed.
class DeletedProgramTest : public ::testing::Test {
protected:
    DeletedProgramTest() {
        system.openKey = [this](Platform::RootKey root, const QString& subKey, quint32 access) {
            const bool isListed = root == Platform::RootKey::LocalMachine && (access & Platform::keyWow64_32Key) != 0;
            opened = subKey.section('\\', -1);
            return isListed && opened != "b" ? Platform::errorSuccess : deleted;
        };
        system.enumKey = [](quint32 index, char16_t* name, quint32& length) {
            name[0] = static_cast<char16_t>(u'a' + index);
            name[1] = u'\0';
            length = 1;
            return index < 3 ? Platform::errorSuccess : Platform::errorNoMoreItems;
        };
        system.queryValue = [this](const QString&, quint32& type, void* data, quint32& size) {
            type = Platform::regSz;
            const QString value = "Program " + opened;
            size = static_cast<quint32>(value.size()) * 2;
            std::memcpy(data, value.utf16(), size);
            return Platform::errorSuccess;
        };
    }

    ScriptedSystem system;
    QString opened;
    Platform::ErrorCode deleted = Platform::errorFileNotFound;
};

TEST_F(DeletedProgramTest, CostsOnlyItself) {
    constexpr Platform::ErrorCode errorKeyDeleted = 1018;
    for (const Platform::ErrorCode error : {Platform::errorFileNotFound, errorKeyDeleted}) {
        deleted = error;
        UninstallIndex index;
        QStringList names;
        for (const UninstallEntry& entry : index.entries()) {
            names.append(entry.displayName);
        }
        EXPECT_THAT(names, ElementsAre("Program a", "Program c")) << error;
        EXPECT_EQ(system.openKeys, 0);
    }
}

} // namespace
