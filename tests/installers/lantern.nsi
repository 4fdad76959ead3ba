; A game for all users that tells its folder.

Unicode true
Target amd64-unicode

!define NAME "Lantern Harbour"
!define ID "LanternHarbour"
!define EXECUTABLE "lantern.exe"
!define FOLDER "$PROGRAMFILES64\Lantern Harbour"
!define USERS all
!define VIEW 64
!define TELLS_ITS_FOLDER
!define HAS_SHORTCUT

!include "game.nsh"
