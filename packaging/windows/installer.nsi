; Installs for the user who runs it, without an administrator's rights. Classes lie in the user's
; documents and are never touched by the uninstaller.
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true

!include LogicLib.nsh
!include MUI2.nsh

Name "Zeugnisprogramm"
OutFile "${TARGET}"
InstallDir "$LOCALAPPDATA\Programs\Zeugnisprogramm"
InstallDirRegKey HKCU "Software\Zeugnisprogramm" "Ordner"
BrandingText "Zeugnisprogramm ${VERSION}"

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=1031 "ProductName" "Zeugnisprogramm"
VIAddVersionKey /LANG=1031 "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=1031 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=1031 "FileDescription" "Installation des Zeugnisprogramms"
VIAddVersionKey /LANG=1031 "LegalCopyright" "GPL-3.0-or-later"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${PICTURE}"
!define MUI_FINISHPAGE_TITLE "Das Zeugnisprogramm ist installiert"
!define MUI_FINISHPAGE_TEXT "Sie finden das Zeugnisprogramm im Startmenü. Beim ersten Start legen Sie Ihre Klasse an; sie liegt dann in Ihren Dokumenten im Ordner Zeugnisse."
!define MUI_FINISHPAGE_RUN "$INSTDIR\zeugnisprogramm.exe"
!define MUI_FINISHPAGE_RUN_PARAMETERS "--auswahl"
!define MUI_FINISHPAGE_RUN_TEXT "Jetzt starten"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!define MUI_UNCONFIRMPAGE_TEXT_TOP "Das Zeugnisprogramm wird entfernt. Ihre Klassen bleiben, wo sie sind, und lassen sich später wieder öffnen."
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "German"

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Zeugnisprogramm"

; Windows neither replaces nor removes a program that runs; half of it would stay.
!macro CloseFirst un
Function ${un}IsOpen ; name of a program; leaves 1 if it runs
    Exch $0
    ${IfNot} ${FileExists} "$INSTDIR\$0"
        StrCpy $0 0
    ${Else}
        ClearErrors
        FileOpen $1 "$INSTDIR\$0" a
        StrCpy $0 0
        ${If} ${Errors}
            StrCpy $0 1
        ${Else}
            FileClose $1
        ${EndIf}
    ${EndIf}
    Exch $0
FunctionEnd

Function ${un}CloseFirst
    ${Do}
        Push "zeugnisprogramm.exe"
        Call ${un}IsOpen
        Pop $2
        Push "zeugnisdokumente.exe"
        Call ${un}IsOpen
        Pop $3
        ${If} $2$3 == 00
            Return
        ${EndIf}
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Das Zeugnisprogramm ist noch offen. Bitte speichern Sie Ihre Texte, schließen Sie alle Fenster des Programms und wählen Sie dann „Wiederholen“." /SD IDCANCEL IDRETRY again
        Abort "Nichts wurde verändert."
        again:
    ${Loop}
FunctionEnd
!macroend
!insertmacro CloseFirst ""
!insertmacro CloseFirst "un."

; Only what was installed, so that nothing else in the folder is lost.
!macro RemovePrograms
    Delete "$INSTDIR\zeugnisprogramm.exe"
    Delete "$INSTDIR\zeugnisdokumente.exe"
    Delete "$INSTDIR\*.dll"
    Delete "$INSTDIR\qt.conf"
    Delete "$INSTDIR\LIESMICH.txt"
    RMDir /r "$INSTDIR\plugins"
    RMDir /r "$INSTDIR\translations"
    RMDir /r "$INSTDIR\fonts"
    RMDir /r "$INSTDIR\dictionaries"
    RMDir /r "$INSTDIR\Lizenzen"
    RMDir /r "$INSTDIR\Vorlage"
!macroend

Section
    Call CloseFirst
    ; Of an earlier version nothing may stay beside the new one.
    ${If} ${FileExists} "$INSTDIR\Entfernen.exe"
        !insertmacro RemovePrograms
    ${EndIf}
    SetOutPath "$INSTDIR"
    File /r "${ROOT}\*"
    WriteUninstaller "$INSTDIR\Entfernen.exe"

    CreateShortcut "$SMPROGRAMS\Zeugnisprogramm.lnk" "$INSTDIR\zeugnisprogramm.exe" "--auswahl"

    WriteRegStr HKCU "Software\Zeugnisprogramm" "Ordner" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "Zeugnisprogramm"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\zeugnisprogramm.exe"
    WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\Entfernen.exe"'
    WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\Entfernen.exe" /S'
    WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
SectionEnd

Section Uninstall
    Call un.CloseFirst
    !insertmacro RemovePrograms
    Delete "$SMPROGRAMS\Zeugnisprogramm.lnk"
    Delete "$INSTDIR\Entfernen.exe"
    RMDir "$INSTDIR"
    DeleteRegKey HKCU "${UNINSTALL}"
    DeleteRegKey HKCU "Software\Zeugnisprogramm"
SectionEnd
