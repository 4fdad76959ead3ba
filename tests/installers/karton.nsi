; A game for one user, who needs no other's leave to install it.

Unicode true
Target amd64-unicode

!define NAME "Kartonrakete"
!define ID "Kartonrakete"
!define EXECUTABLE "kartonrakete.exe"
!define FOLDER "$LOCALAPPDATA\Programs\Kartonrakete"
!define USERS current
!define VIEW 64
!define TELLS_ITS_FOLDER
!define HAS_SHORTCUT

!include "game.nsh"
