#include "platform/SystemFunctions.h"

#include "platform/recorded/RecordedPc.h"

#include <chrono>
#include <cstring>
#include <memory>
#include <new>

namespace Platform {

namespace {

// The functions that look app packages up, as learn.microsoft.com/windows/win32/api/appmodel documents them.

using Result = qint32;

constexpr Result successful = 0;
constexpr Result errorOutOfMemory = 14;
constexpr Result errorInvalidParameter = 87;
constexpr Result errorInsufficientBuffer = 122;
constexpr Result errorNotFound = 1168;

struct PackageReference {
    QStringList applicationIds;
};

quint32 charactersOf(const QStringList& texts) {
    qint64 count = 0;
    for (const QString& text : texts) {
        count += text.size() + 1;
    }
    return static_cast<quint32>(count);
}

// Writes the texts one after the other to `buffer`, and where each begins to `begins`, which may lie anywhere.
void write(const QStringList& texts, void* begins, char16_t* buffer) {
    auto* begin = static_cast<unsigned char*>(begins);
    for (const QString& text : texts) {
        const size_t size = static_cast<size_t>(text.size()) + 1;
        std::memcpy(buffer, text.utf16(), size * sizeof(char16_t));
        std::memcpy(begin, &buffer, sizeof buffer);
        begin += sizeof buffer;
        buffer += size;
    }
}

// No exception may cross the interface of a system function.
template <typename Function>
Result guarded(const Function& function) noexcept {
    try {
        return function();
    } catch (const std::bad_alloc&) {
        return errorOutOfMemory;
    }
}

Result packagesByFamily(const char16_t* family, quint32* count, char16_t** fullNames, quint32* length,
                        char16_t* buffer) noexcept {
    const bool mayWrite = fullNames && buffer;
    if (!family || !count || !length || (*count > 0 && !fullNames) || (*length > 0 && !buffer)) {
        return errorInvalidParameter;
    }
    return guarded([=] {
        const auto pc = Recorded::currentPc();
        const QString wanted = QString::fromUtf16(family);
        QStringList names;
        for (const Recordings::AppPackage& package : pc->description().packages.value_or(Recordings::AppPackages())) {
            if (package.family.compare(wanted, Qt::CaseInsensitive) == 0) {
                names.append(package.fullName);
            }
        }
        const auto neededCount = static_cast<quint32>(names.size());
        const quint32 neededLength = charactersOf(names);
        const bool fits = *count >= neededCount && *length >= neededLength;
        *count = neededCount;
        *length = neededLength;
        if (!fits) {
            return errorInsufficientBuffer;
        }
        if (mayWrite) {
            write(names, fullNames, buffer);
        }
        return successful;
    });
}

Result openPackage(const char16_t* fullName, quint32 reserved, void** reference) noexcept {
    if (!fullName || reserved != 0 || !reference) {
        return errorInvalidParameter;
    }
    return guarded([=] {
        const auto pc = Recorded::currentPc();
        const QString wanted = QString::fromUtf16(fullName);
        for (const Recordings::AppPackage& package : pc->description().packages.value_or(Recordings::AppPackages())) {
            if (package.fullName.compare(wanted, Qt::CaseInsensitive) == 0) {
                *reference = std::make_unique<PackageReference>(PackageReference{package.applicationIds}).release();
                return successful;
            }
        }
        return errorNotFound;
    });
}

Result closePackage(void* reference) noexcept {
    delete static_cast<PackageReference*>(reference);
    return reference ? successful : errorInvalidParameter;
}

// The buffer begins with the pointers to the texts that follow them.
Result applicationIds(void* reference, quint32* bytes, unsigned char* buffer, quint32* count) noexcept {
    if (!reference || !bytes || (*bytes > 0 && !buffer)) {
        return errorInvalidParameter;
    }
    const QStringList& ids = static_cast<PackageReference*>(reference)->applicationIds;
    const size_t pointers = static_cast<size_t>(ids.size()) * sizeof(char16_t*);
    const auto needed = static_cast<quint32>(pointers + charactersOf(ids) * sizeof(char16_t));
    const bool fits = *bytes >= needed;
    *bytes = needed;
    if (count) {
        *count = static_cast<quint32>(ids.size());
    }
    if (!fits) {
        return errorInsufficientBuffer;
    }
    if (needed > 0) {
        write(ids, buffer, reinterpret_cast<char16_t*>(buffer + pointers));
    }
    return successful;
}

quint64 tickCount64() noexcept {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<quint64>(std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

struct NamedFunction {
    const char* name;
    SystemFunction function;
};

const NamedFunction packageFunctions[] = {
    {"GetPackagesByPackageFamily", reinterpret_cast<SystemFunction>(packagesByFamily)},
    {"OpenPackageInfoByFullName", reinterpret_cast<SystemFunction>(openPackage)},
    {"ClosePackageInfo", reinterpret_cast<SystemFunction>(closePackage)},
    {"GetPackageApplicationIds", reinterpret_cast<SystemFunction>(applicationIds)},
};

} // namespace

SystemFunction kernelFunction(const char* name) {
    if (std::strcmp(name, "GetTickCount64") == 0) {
        return reinterpret_cast<SystemFunction>(tickCount64);
    }
    for (const NamedFunction& known : packageFunctions) {
        if (std::strcmp(name, known.name) == 0 && Recorded::currentPc()->description().packages) {
            return known.function;
        }
    }
    return nullptr;
}

} // namespace Platform
