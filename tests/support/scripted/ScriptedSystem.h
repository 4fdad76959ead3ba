#pragma once

#include "platform/FolderLock.h"
#include "platform/Registry.h"
#include "platform/TextStream.h"

#include <QString>
#include <QtGlobal>

#include <functional>
#include <memory>

/// A system that does what a test says. Its program is linked with these functions in place of the seam's own, so a
/// test can have what no PC does when asked to: a value that grows between two questions, a file that can't be moved.
/// What a test leaves as it is isn't there, or fails. One at a time.
class ScriptedSystem {
public:
    ScriptedSystem();
    ~ScriptedSystem();

    // Registry; every key that opens is the same one
    std::function<Platform::ErrorCode(Platform::RootKey root, const QString& subKey, quint32 access)> openKey;
    std::function<Platform::ErrorCode(Platform::RootKey root, const QString& subKey, quint32 access)> openKeyNarrow;
    std::function<Platform::ErrorCode(const QString& name, quint32& type, void* data, quint32& size)> queryValue;
    std::function<Platform::ErrorCode(const QString& name, quint32& type, void* data, quint32& size)> queryValueNarrow;
    std::function<Platform::ErrorCode(quint32 index, char16_t* name, quint32& length)> enumKey;
    int openKeys = 0; ///< how many are open now

    // Folders
    std::function<qint32(int csidl, char16_t* buffer)> folderPath;
    std::function<qint32(int csidl, char16_t* buffer)> ownFolderPath;

    // Files
    std::function<qint64(const QString& path)> fileSize;
    std::function<bool(const QString& path)> createFolder;
    std::function<bool(const QString& path)> deleteFile;
    std::function<bool(const QString& from, const QString& to)> moveFile;
    std::function<std::unique_ptr<Platform::TextStream>(const QString& path, const char* mode)> openShared;
    std::function<std::unique_ptr<Platform::FolderLock>(const QString& path)> lockFolder;

    // Version resources
    std::function<quint32(const QString& path)> fileVersionInfoSize;
    std::function<bool(const QString& path, quint32 size, void* block)> fileVersionInfo;
    std::function<bool(const void* block, const void*& record, quint32& length)> versionRootBlock;

private:
    Q_DISABLE_COPY_MOVE(ScriptedSystem)
};
