#include "support/scripted/ScriptedSystem.h"

#include "platform/Files.h"
#include "platform/Folders.h"
#include "platform/Versions.h"

namespace {

ScriptedSystem* current = nullptr;

constexpr qint32 failed = -1;

} // namespace

ScriptedSystem::ScriptedSystem() {
    const auto noKey = [](Platform::RootKey, const QString&, quint32) { return Platform::errorFileNotFound; };
    const auto noValue = [](const QString&, quint32&, void*, quint32&) { return Platform::errorFileNotFound; };
    const auto noFolder = [](int, char16_t*) { return failed; };
    openKey = openKeyNarrow = noKey;
    queryValue = queryValueNarrow = noValue;
    enumKey = [](quint32, char16_t*, quint32&) { return Platform::errorNoMoreItems; };
    folderPath = ownFolderPath = noFolder;
    fileSize = [](const QString&) { return -1; };
    createFolder = deleteFile = [](const QString&) { return false; };
    moveFile = [](const QString&, const QString&) { return false; };
    openShared = [](const QString&, const char*) { return nullptr; };
    lockFolder = [](const QString&) { return nullptr; };
    fileVersionInfoSize = [](const QString&) { return 0; };
    fileVersionInfo = [](const QString&, quint32, void*) { return false; };
    versionRootBlock = [](const void*, const void*&, quint32&) { return false; };
    current = this;
}

ScriptedSystem::~ScriptedSystem() {
    current = nullptr;
}

// Every function that the code under test takes from these of the seam's headers; one that is missing here would
// bring the seam's own in, and the linker would find all of them twice.
namespace Platform {

namespace {

ErrorCode keep(ErrorCode result, KeyHandle& key) {
    key.reset();
    if (result == errorSuccess) {
        ++current->openKeys;
        key.reset(current);
    }
    return result;
}

} // namespace

void KeyCloser::operator()(void* key) const noexcept {
    --static_cast<ScriptedSystem*>(key)->openKeys;
}

ErrorCode openKey(RootKey root, const QString& subKey, quint32 access, KeyHandle& key) {
    return keep(current->openKey(root, subKey, access), key);
}

ErrorCode openKeyNarrow(RootKey root, const char* subKey, quint32 access, KeyHandle& key) {
    return keep(current->openKeyNarrow(root, QString::fromLatin1(subKey), access), key);
}

ErrorCode queryValue(const KeyHandle& /*key*/, const QString& valueName, quint32& type, void* data, quint32& size) {
    return current->queryValue(valueName, type, data, size);
}

ErrorCode queryValueNarrow(const KeyHandle& /*key*/, const char* valueName, quint32& type, void* data, quint32& size) {
    return current->queryValueNarrow(QString::fromLatin1(valueName), type, data, size);
}

ErrorCode enumKey(const KeyHandle& /*key*/, quint32 index, char16_t* name, quint32& length) {
    return current->enumKey(index, name, length);
}

qint32 folderPath(int csidl, char16_t* buffer) {
    return current->folderPath(csidl, buffer);
}

qint32 ownFolderPath(int csidl, char16_t* buffer) {
    return current->ownFolderPath(csidl, buffer);
}

qint64 fileSize(const QString& path) {
    return current->fileSize(path);
}

bool createFolder(const QString& path) {
    return current->createFolder(path);
}

bool deleteFile(const QString& path) {
    return current->deleteFile(path);
}

bool moveFile(const QString& from, const QString& to) {
    return current->moveFile(from, to);
}

std::unique_ptr<TextStream> openShared(const QString& path, const char* mode) {
    return current->openShared(path, mode);
}

std::unique_ptr<FolderLock> lockFolder(const QString& path) {
    return current->lockFolder(path);
}

quint32 fileVersionInfoSize(const QString& path) {
    return current->fileVersionInfoSize(path);
}

bool fileVersionInfo(const QString& path, quint32 size, void* block) {
    return current->fileVersionInfo(path, size, block);
}

bool versionRootBlock(const void* block, const void*& record, quint32& length) {
    return current->versionRootBlock(block, record, length);
}

} // namespace Platform
