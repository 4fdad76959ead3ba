; A game that registers as 32-bit software does, its name beyond the code page.

Unicode true
Target amd64-unicode

!define NAME "競走クラブ"
!define ID "KeisoClub"
!define EXECUTABLE "KeisoClub.exe"
!define FOLDER "D:\Spiele\競走クラブ"
!define USERS all
!define VIEW 32
!define TELLS_ITS_FOLDER

!include "game.nsh"
