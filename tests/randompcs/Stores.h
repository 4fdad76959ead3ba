#pragma once

class Draft;

// What a store or a part of Windows leaves on a PC, with games of it.

void addSteam(Draft& draft);
void addEpicLauncher(Draft& draft);
void addOculusStore(Draft& draft);
void addAppPackages(Draft& draft);

void addUninstallEntries(Draft& draft);
void addGamesExplorer(Draft& draft);
void addStartMenus(Draft& draft);

void addKnownFolders(Draft& draft);
void addUserChoices(Draft& draft);
void addRuntimes(Draft& draft);
