#pragma once

#include "recordings/PrivateNames.h"

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <vector>

/// What the program itself asks of the PC that the plug-in answers from, the one it runs on or a recorded one: what
/// no finder asks, and so no trace tells. By the seam, as finders ask, so that the answers are of the same PC.
namespace Find {

/// One entry of a folder: a link or a shortcut itself.
struct FolderEntry {
    QString name;
    bool isFolder = false;
    bool isLink = false;
};

/// What is in a folder, but "." and "..", by the names that the system has, however long they are. Empty when it has no
/// drive letter or can't be listed.
std::vector<FolderEntry> listFolder(const QString& folder);

/// The names of a folder's folders, links to folders among them.
QStringList subFoldersOf(const QString& folder);

QProcessEnvironment environmentOfPc();

/// The names that tell whose PC it is, as far as the environment and the system know them.
Recordings::NameSources namesOfPc();

/// The ANSI code page; Windows-1252 when it is not known.
int codePageOfPc();

/// The families of the app packages that are registered for the user, each once. Whether they are installed, the
/// system's package functions say.
QStringList registeredPackageFamilies();

/// The keys of all games for which the user chose a folder.
QStringList userChoiceKeys();

/// Whether a folder that the user chose under one key is found under the other: Windows and a recorded PC ignore the
/// letter case, other systems do not.
bool isSameUserChoice(const QString& key, const QString& other);

} // namespace Find
