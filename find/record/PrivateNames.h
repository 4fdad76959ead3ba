#pragma once

#include "find/record/NeutralNames.h"
#include "recordings/Pc.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace Find {

/// Where the names stand that tell whose PC it is; each empty when unknown.
struct NameSources {
    QString account;
    QString profile; ///< the folder of the user's profile: "C:\Users\anna"
    QStringList machine;
};

/// The names of the PC that the process answers from, out of its environment; the profile's folder out of the shell's
/// folders where the environment does not tell it.
NameSources nameSources(const Recordings::Pc& pc);

/// What must stay as it is in a recording, or the finders would find other things in it.
struct RecordedTexts {
    QStringList places; ///< texts that finders and the catalogue search for
    QStringList paths;  ///< all paths of the recording, of files and of registry keys
    QStringList others; ///< all other texts of the recording
};

/// The private names of the PC with the neutral ones that a recording gets in their place: "user" and "pc", with a
/// number ("user-2") where two paths would become one otherwise. A name that is too short, or a word of the places, is
/// only neutral as a folder beside the user's profile; so are the names of other users.
std::vector<PrivateName> choosePrivateNames(const NameSources& sources, const RecordedTexts& texts);

/// The name of the folder that holds the users' profiles ("Users").
QString profilesFolderName(const NameSources& sources);

} // namespace Find
