#pragma once

#include "recordings/AnsiText.h"
#include "recordings/Drives.h"
#include "recordings/Registry.h"

#include <QMap>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace Recordings {

/// An app package that is installed for the user.
struct AppPackage {
    QString family;
    QString fullName;
    QStringList applicationIds;

    friend bool operator==(const AppPackage& a, const AppPackage& b) {
        return a.family == b.family && a.fullName == b.fullName && a.applicationIds == b.applicationIds;
    }
};

using AppPackages = std::vector<AppPackage>;

/// A PC on paper: what finders can read of it. Everything is optional; what isn't there is empty.
struct Pc {
    Registry registry;
    Drives drives;
    QMap<int, QString> shellFolders; ///< by CSIDL number
    QMap<QChar, QString> volumes;    ///< by drive letter in upper case: \\?\Volume{…}\ .
    QProcessEnvironment environment;
    std::optional<AppPackages> packages; ///< no value on a system without app packages, or when nobody asked
    QString hostExecutable;
    quint64 hostVersion = 0;              ///< four numbers of 16 bits; 0 when not known
    QMap<QString, QString> userLocations; ///< the folders that the user chose, by the keys of the games
    int codePage = westernCodePage;       ///< the ANSI one

    friend bool operator==(const Pc& a, const Pc& b) {
        return a.registry == b.registry && a.drives == b.drives && a.shellFolders == b.shellFolders &&
               a.volumes == b.volumes && a.environment == b.environment && a.packages == b.packages &&
               a.hostExecutable == b.hostExecutable && a.hostVersion == b.hostVersion &&
               a.userLocations == b.userLocations && a.codePage == b.codePage;
    }
};

} // namespace Recordings
