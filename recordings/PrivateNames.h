#pragma once

#include "recordings/NeutralNames.h"
#include "recordings/Pc.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace Recordings {

/// Where the names stand that tell whose PC it is; each empty when unknown.
struct NameSources {
    QString account;
    QString profile; ///< the folder of the user's profile: "C:\Users\anna"
    QStringList machine;
};

/// The folder of the user's profile, of which the shell's folders are part; empty when none tells it.
QString profileAmong(const QMap<int, QString>& shellFolders);

/// The texts of a recording.
struct RecordedTexts {
    QStringList paths;  ///< of files and of registry keys
    QStringList others; ///< values, contents of files, targets of shortcuts and all else
};

RecordedTexts textsOf(const Pc& pc);

/// The private names of the PC with the neutral ones that a recording gets in their place: "user" and "pc", with a
/// number ("user-2") where two paths would become one otherwise. A name that is too short, or a word of the places, is
/// only neutral as a folder beside the user's profile; so are the names of other users.
std::vector<PrivateName> choosePrivateNames(const NameSources& sources, const QStringList& places,
                                            const RecordedTexts& texts);

/// The name of the folder that holds the users' profiles ("Users").
QString profilesFolderName(const NameSources& sources);

} // namespace Recordings
