#pragma once

#include "common/TestPc.h"
#include "platform/Registry.h"
#include "support/RegistryKey.h"

inline const QString oculusKeyPath = "Software\\Oculus VR, LLC\\Oculus\\Libraries";

/// Registers a library; whether its folders exist is another matter.
inline void addOculusLibrary(TestPc& pc, const QString& key, const QString& path) {
    pc.value({Platform::RootKey::CurrentUser, oculusKeyPath + '\\' + key, View::view64}, "Path", path);
}

/// Makes the two folders of a library.
inline void makeOculusFolders(TestPc& pc, const QString& folder) {
    pc.folder(folder + "\\Software");
    pc.folder(folder + "\\Manifests");
}
