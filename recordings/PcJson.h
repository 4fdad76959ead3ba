#pragma once

#include "recordings/Problem.h"

#include <QByteArray>
#include <QHash>
#include <QMap>
#include <QProcessEnvironment>
#include <QStringList>

#include <optional>
#include <vector>

namespace Recordings {

/// An app package that is installed for the user.
struct AppPackage {
    QString family;
    QString fullName;
    QStringList applicationIds;
};

using AppPackages = std::vector<AppPackage>;

/// What pc.json tells of a PC. Everything is optional; what isn't there is empty.
struct PcDescription {
    QHash<int, QString> shellFolders; ///< by CSIDL number
    QMap<QChar, QString> volumes;     ///< by drive letter in upper case: \\?\Volume{…}\ .
    QProcessEnvironment environment;
    std::optional<AppPackages> packages; ///< empty on a system without app packages
    QString hostExecutable;
    quint64 hostVersion = 0;              ///< four numbers of 16 bits; 0 when not known
    QMap<QString, QString> userLocations; ///< the folders that the user chose, by the keys of the games
    QStringList hidden;
    QStringList system;
};

/// Reads the text of a pc.json. A fault costs only the entry that has it and is added to `problems` under `file`.
PcDescription parsePcDescription(const QByteArray& json, const QString& file, std::vector<Problem>& problems);

} // namespace Recordings
