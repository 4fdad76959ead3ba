#include "find/record/GeneralFolders.h"

#include "recordings/Drives.h"
#include "recordings/WindowsNames.h"

#include <algorithm>
#include <iterator>

namespace Find {

namespace {

// On whatever drive.
constexpr const char* folders[] = {"PROGRAM FILES", "PROGRAM FILES (X86)",        "PROGRAMDATA",
                                   "USERS",         "PROGRAM FILES/COMMON FILES", "PROGRAM FILES (X86)/COMMON FILES"};
constexpr const char* windowsFolder = "WINDOWS";
constexpr const char* profilesFolder = "USERS";

constexpr const char* foldersOfProfile[] = {"",
                                            "/APPDATA",
                                            "/APPDATA/LOCAL",
                                            "/APPDATA/LOCAL/PROGRAMS",
                                            "/APPDATA/LOCAL/TEMP",
                                            "/APPDATA/LOCALLOW",
                                            "/APPDATA/ROAMING",
                                            "/DESKTOP",
                                            "/DOCUMENTS",
                                            "/DOWNLOADS"};

constexpr const char* variables[] = {"ProgramFiles",
                                     "ProgramFiles(x86)",
                                     "ProgramW6432",
                                     "CommonProgramFiles",
                                     "CommonProgramFiles(x86)",
                                     "CommonProgramW6432",
                                     "ProgramData",
                                     "ALLUSERSPROFILE",
                                     "PUBLIC",
                                     "TEMP",
                                     "TMP",
                                     "SystemDrive"};

bool isWithin(const QString& path, const QString& folder) {
    return path == folder || path.startsWith(folder + QLatin1Char('/'));
}

/// The folded path of what a variable names; empty when that is no folder on a drive.
QString folderIn(const QProcessEnvironment& environment, const char* variable) {
    const auto path = Recordings::DrivePath::parse(environment.value(QLatin1String(variable)));
    return path ? foldedPath(*path) : QString();
}

template <class Names>
bool isOneOf(const QString& text, const Names& names) {
    return std::any_of(std::begin(names), std::end(names),
                       [&text](const char* name) { return text == QLatin1String(name); });
}

QString parentOf(const QString& path) {
    return path.left(path.lastIndexOf(QLatin1Char('/')));
}

} // namespace

GeneralFolders::GeneralFolders(const QProcessEnvironment& environment) {
    for (const char* const variable : variables) {
        m_folders.insert(folderIn(environment, variable));
    }
    for (const char* const variable : {"SystemRoot", "windir"}) {
        m_windows.insert(folderIn(environment, variable));
    }
    m_windows.remove(QString());
    const QString profile = folderIn(environment, "USERPROFILE");
    m_folders.insert(profile);
    if (parentOf(profile).contains(QLatin1Char('/'))) { // or all of a drive would be the profiles'
        m_profiles.insert(parentOf(profile));
    }
}

void GeneralFolders::add(const QString& folder) {
    if (const auto path = Recordings::DrivePath::parse(folder)) {
        m_folders.insert(foldedPath(*path));
    }
}

bool GeneralFolders::contains(const Recordings::DrivePath& folder) const {
    const QString path = foldedPath(folder);
    const QString below = path.mid(3); // the drive
    const auto holds = [&path](const QString& known) { return isWithin(path, known); };
    return folder.isRoot() || m_folders.contains(path) || isOneOf(below, folders) ||
           isWithin(below, QLatin1String(windowsFolder)) || std::any_of(m_windows.begin(), m_windows.end(), holds) ||
           isOfProfile(path);
}

/// Whether it is the folder of all users, of one of them, or one of those that every user has.
bool GeneralFolders::isOfProfile(const QString& path) const {
    QSet<QString> profiles = m_profiles;
    profiles.insert(path.left(3) + QLatin1String(profilesFolder));
    return std::any_of(profiles.begin(), profiles.end(), [&path](const QString& known) {
        const QString withinProfiles = path.mid(known.size() + 1);
        const int endOfUser = withinProfiles.indexOf(QLatin1Char('/'));
        const QString withinUser = endOfUser < 0 ? QString() : withinProfiles.mid(endOfUser);
        return path == known || (isWithin(path, known) && isOneOf(withinUser, foldersOfProfile));
    });
}

} // namespace Find
