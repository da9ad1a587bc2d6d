; Installs for the user who runs it, without an administrator's rights. Classes lie in the user's
; documents and are never touched by the uninstaller.
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true

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
!define MUI_FINISHPAGE_TEXT "Sie finden das Zeugnisprogramm im Startmenü. Beim ersten Start legen Sie Ihre Klasse an; sie liegt dann in Ihren Dokumenten im Ordner Zeugnisse."
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "German"

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Zeugnisprogramm"

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
    ; Of an earlier version nothing may stay beside the new one.
    !insertmacro RemovePrograms
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
    !insertmacro RemovePrograms
    Delete "$SMPROGRAMS\Zeugnisprogramm.lnk"
    Delete "$INSTDIR\Entfernen.exe"
    RMDir "$INSTDIR"
    DeleteRegKey HKCU "${UNINSTALL}"
    DeleteRegKey HKCU "Software\Zeugnisprogramm"
SectionEnd
