#pragma once

#include "common/TestPc.h"
#include "platform/Registry.h"
#include "support/RegistryKey.h"

/// An entry of the Uninstall registry; the machine's in the 32-bit view unless a test says otherwise.
struct TestProgram {
    QString key;
    QString name;
    QString location;
    QString uninstaller;
    Platform::RootKey root = Platform::RootKey::LocalMachine;
    quint32 view = View::view32;
};

inline const QString uninstallKeyPath = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall";

/// Adds the entry, without the values that are null.
inline void addProgram(TestPc& pc, const TestProgram& program) {
    const TestKey key{program.root, uninstallKeyPath + '\\' + program.key, program.view};
    pc.key(key);
    for (const auto& [name, text] : {std::pair{"DisplayName", program.name},
                                     {"InstallLocation", program.location},
                                     {"UninstallString", program.uninstaller}}) {
        if (!text.isNull()) {
            pc.value(key, name, text);
        }
    }
}
