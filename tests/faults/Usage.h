#pragma once

#include <QString>

#include <cstddef>

/// What this process uses of the system.
struct Usage {
    int handles = 0; ///< natively files
    int threads = 0;
    std::size_t bytes = 0; ///< allocated

    static Usage now();

    /// By how much `bytes` may be wrong: the native allocator counts what it keeps for later.
    static const std::size_t uncertainBytes;
};

/// How many handles are lost by looking for the Steam client's key: none on Windows. Wine opens its root for each look
/// into one view of HKEY_CLASSES_ROOT, and does not close it.
int handlesLostByLookingForSteam();

/// Whether a library of that file is loaded.
bool isLoaded(const QString& path);
