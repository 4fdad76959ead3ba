; A game that tells only where its uninstaller is.

Unicode true
Target amd64-unicode

!define NAME "Käferrennen & Söhne"
!define ID "KaeferrennenUndSoehne"
!define EXECUTABLE "kaefer.exe"
!define FOLDER "D:\Spiele\Käferrennen & Söhne"
!define USERS all
!define VIEW 64
!define HAS_SHORTCUT

!include "game.nsh"
