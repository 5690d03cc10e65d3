; The installer, for the user alone and without an administrator's rights, in Danish or English as the system is; and
; what removes it again. /S asks nothing. Wants VERSION, FROM (the folder of what is shipped), ICON,
; PICTURE (beside the last page) and TO.
Target amd64-unicode
!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include WinVer.nsh

!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tavrune"

Name Tavrune
OutFile "${TO}"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\Tavrune"
InstallDirRegKey HKCU "${ENTRY}" InstallLocation
AllowSkipFiles off
SetCompressor /SOLID lzma
ManifestDPIAware true
ManifestSupportedOS Win10
BrandingText " "
ShowInstDetails nevershow
ShowUninstDetails nevershow

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=0 ProductName Tavrune
VIAddVersionKey /LANG=0 ProductVersion "${VERSION}"
VIAddVersionKey /LANG=0 FileVersion "${VERSION}"
VIAddVersionKey /LANG=0 FileDescription "Tavrune"
VIAddVersionKey /LANG=0 CompanyName "Holdet bag Tavrune"
VIAddVersionKey /LANG=0 LegalCopyright "© 2005 Holdet bag Tavrune"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_WELCOMEFINISHPAGE_BITMAP "${PICTURE}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\tavrune.exe"
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
; The first is taken where the system speaks neither.
!insertmacro MUI_LANGUAGE English
!insertmacro MUI_LANGUAGE Danish

LangString RUNNING ${LANG_ENGLISH} "Tavrune is running. Close it, then press Retry."
LangString RUNNING ${LANG_DANISH} "Tavrune er åben. Luk programmet, og tryk så på Prøv igen."
LangString TOO_OLD ${LANG_ENGLISH} "Tavrune needs Windows 10 or later."
LangString TOO_OLD ${LANG_DANISH} "Tavrune kræver Windows 10 eller nyere."

; Waits for the program to be closed, whose file can't be written to as long as it runs; gives up, with status 2, where
; nobody can be asked or nobody wants to.
!macro WaitUntilClosed un
Function ${un}waitUntilClosed
again:
    ${IfNot} ${FileExists} "$INSTDIR\tavrune.exe"
        Return
    ${EndIf}
    ClearErrors
    FileOpen $0 "$INSTDIR\tavrune.exe" a
    ${If} ${Errors}
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(RUNNING)" /SD IDCANCEL IDRETRY again
        SetErrorLevel 2
        Quit
    ${EndIf}
    FileClose $0
FunctionEnd
!macroend
!insertmacro WaitUntilClosed ""
!insertmacro WaitUntilClosed "un."

Function .onInit
    ${IfNot} ${AtLeastWin10}
        MessageBox MB_OK|MB_ICONSTOP "$(TOO_OLD)" /SD IDOK
        SetErrorLevel 2
        Quit
    ${EndIf}
    Call waitUntilClosed
FunctionEnd

Function un.onInit
    Call un.waitUntilClosed
FunctionEnd

; All that an installation consists of.
!macro RemoveFiles
    RMDir /r "$INSTDIR\platforms"
    RMDir /r "$INSTDIR\translations"
    RMDir /r "$INSTDIR\licenser"
    Delete "$INSTDIR\*.dll"
    Delete "$INSTDIR\tavrune.exe"
    Delete "$INSTDIR\LICENSER.txt"
    Delete "$INSTDIR\uninstall.exe"
!macroend

Section
    !insertmacro RemoveFiles
    SetOutPath $INSTDIR
    File /r "${FROM}/*"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateShortcut "$SMPROGRAMS\Tavrune.lnk" "$INSTDIR\tavrune.exe"

    WriteRegStr HKCU "${ENTRY}" DisplayName Tavrune
    WriteRegStr HKCU "${ENTRY}" DisplayVersion "${VERSION}"
    WriteRegStr HKCU "${ENTRY}" DisplayIcon "$INSTDIR\tavrune.exe"
    WriteRegStr HKCU "${ENTRY}" Publisher "Holdet bag Tavrune"
    WriteRegStr HKCU "${ENTRY}" InstallLocation "$INSTDIR"
    WriteRegStr HKCU "${ENTRY}" UninstallString '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${ENTRY}" QuietUninstallString '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${ENTRY}" NoModify 1
    WriteRegDWORD HKCU "${ENTRY}" NoRepair 1
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegDWORD HKCU "${ENTRY}" EstimatedSize $0
SectionEnd

Section un.Tavrune
    !insertmacro RemoveFiles
    RMDir "$INSTDIR"
    ; Windows itself has no such folder: it goes unless another program is there.
    RMDir "$LOCALAPPDATA\Programs"
    Delete "$SMPROGRAMS\Tavrune.lnk"
    DeleteRegKey HKCU "${ENTRY}"
SectionEnd
