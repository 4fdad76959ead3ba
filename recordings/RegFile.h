#pragma once

#include "recordings/Problem.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace Recordings {

/// What one line of a .reg file does to a value.
struct RegValue {
    QString name; ///< empty for the default value
    bool isErased = false;
    quint32 type = 0;
    QByteArray data; ///< as the registry stores it: text in UTF-16LE
};

/// One key line of a .reg file and the values below it.
struct RegKey {
    enum class Root { LocalMachine, CurrentUser, ClassesRoot, Users, Other };

    Root root = Root::Other;
    QString path; ///< below the root, without backslashes at its ends
    bool isErased = false;
    std::vector<RegValue> values;
};

constexpr int deepestKey = 512; ///< levels of the registry of Windows

struct RegFile {
    std::vector<RegKey> keys;
    std::vector<Problem> problems;
};

/// Reads a registry file of version 5.00, as regedit and `reg export` write it. A fault costs only the line or the
/// value that has it and is listed in `problems` under `file`; a file without the header of that version is not read.
RegFile parseRegFile(const QByteArray& bytes, const QString& file);

/// "HKEY_LOCAL_MACHINE" and its like, in any letter case; Other for the roots that a recording has nothing of, and for
/// what is none.
RegKey::Root rootNamed(const QString& name);
QString rootName(RegKey::Root root);

} // namespace Recordings
