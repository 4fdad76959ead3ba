; What the installers of the dummy games have in common. Each defines before it includes this file:
;
;   NAME        what the game is called
;   ID          its key in the Uninstall registry
;   EXECUTABLE  its program's file name
;   FOLDER      where it is installed unless the command line says /D=
;   USERS       "all" or "current": whose Start menu and whose Uninstall registry it goes to
;   VIEW        64 or 32, the registry view
;   TELLS_ITS_FOLDER, HAS_SHORTCUT    if it does
;
; The command line defines PROGRAM (the dummy game) and SETUP (the installer to make).

!define KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${ID}"
!define MENU "$SMPROGRAMS\Spiele"

Name "${NAME}"
OutFile "${SETUP}"
InstallDir "${FOLDER}"
!if "${USERS}" == "all"
    RequestExecutionLevel admin
!else
    RequestExecutionLevel user
!endif

; SHCTX, $SMPROGRAMS and the registry functions follow what this sets.
!macro FOR_THESE_USERS
    SetShellVarContext ${USERS}
    SetRegView ${VIEW}
!macroend

Function .onInit
    !insertmacro FOR_THESE_USERS
FunctionEnd

Function un.onInit
    !insertmacro FOR_THESE_USERS
FunctionEnd

Section
    SetOutPath "$INSTDIR\tools"
    File "/oname=editor.exe" "${PROGRAM}"
    SetOutPath "$INSTDIR"
    File "/oname=${EXECUTABLE}" "${PROGRAM}"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    WriteRegStr SHCTX "${KEY}" "DisplayName" "${NAME}"
    WriteRegStr SHCTX "${KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    !ifdef TELLS_ITS_FOLDER
        WriteRegStr SHCTX "${KEY}" "InstallLocation" "$INSTDIR"
    !endif
    !ifdef HAS_SHORTCUT
        CreateDirectory "${MENU}"
        CreateShortCut "${MENU}\${NAME}.lnk" "$INSTDIR\${EXECUTABLE}"
    !endif
SectionEnd

; The key goes last, so that the rest is done when it is gone.
Section "Uninstall"
    SetOutPath "$TEMP"
    !ifdef HAS_SHORTCUT
        Delete "${MENU}\${NAME}.lnk"
        RMDir "${MENU}"
    !endif
    Delete "$INSTDIR\tools\editor.exe"
    RMDir "$INSTDIR\tools"
    Delete "$INSTDIR\${EXECUTABLE}"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    DeleteRegKey SHCTX "${KEY}"
SectionEnd
