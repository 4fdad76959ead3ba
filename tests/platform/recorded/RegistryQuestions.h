#pragma once

#include "common/QtPrinters.h"
#include "common/recorded/RecordingFolder.h"
#include "platform/Registry.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

/// Questions to the registry of the PC under test in one line each.
namespace RegistryQuestions {

constexpr quint32 view64 = Platform::keyRead | Platform::keyWow64_64Key;
constexpr quint32 view32 = Platform::keyRead | Platform::keyWow64_32Key;

/// Opens a key and closes it again.
inline Platform::ErrorCode open(Platform::RootKey root, const QString& path, quint32 access = view64) {
    Platform::KeyHandle key;
    const Platform::ErrorCode result = Platform::openKey(root, path, access, key);
    EXPECT_EQ(static_cast<bool>(key), result == Platform::errorSuccess);
    return result;
}

/// A text of up to 99 characters, or "error N".
inline QString text(Platform::RootKey root, const QString& path, const QString& name, quint32 access = view64) {
    Platform::KeyHandle key;
    Platform::ErrorCode result = Platform::openKey(root, path, access, key);
    std::array<char16_t, 100> buffer{};
    quint32 type = 0;
    quint32 size = sizeof buffer;
    if (result == Platform::errorSuccess) {
        result = Platform::queryValue(key, name, type, buffer.data(), size);
    }
    return result == Platform::errorSuccess ? QString::fromUtf16(buffer.data()) : QString("error %1").arg(result);
}

/// The names of the sub-keys, or "(none)" when there is no such key.
inline std::vector<QString> subKeys(Platform::RootKey root, const QString& path, quint32 access = view64) {
    std::vector<QString> names;
    Platform::KeyHandle key;
    if (Platform::openKey(root, path, access, key) != Platform::errorSuccess) {
        return {"(none)"};
    }
    for (quint32 index = 0;; ++index) {
        std::array<char16_t, 256> name{};
        auto length = static_cast<quint32>(name.size());
        const Platform::ErrorCode result = Platform::enumKey(key, index, name.data(), length);
        if (result == Platform::errorNoMoreItems) {
            return names;
        }
        EXPECT_EQ(result, Platform::errorSuccess);
        names.push_back(QString::fromUtf16(name.data(), static_cast<int>(length)));
    }
}

/// A test over a registry that is recorded in a registry file.
class RecordedRegistry : public ::testing::Test {
protected:
    /// Adds these lines to it.
    void record(const QByteArray& lines) {
        pc.registry(lines);
        pc.choose();
        EXPECT_TRUE(Recordings::readRecording(pc.path({})).problems.empty());
    }

    RecordingFolder pc;
};

} // namespace RegistryQuestions
