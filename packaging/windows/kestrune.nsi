; SPDX-License-Identifier: GPL-3.0-or-later
; The installer: for one user without administrator rights, or for all users of the PC.
; makensis -DVERSION=… -DFILES=folder -DREMOVAL=file -DICON=file -DOUTPUT=file kestrune.nsi
; The file of REMOVAL has a Delete for each packed file, and an RMDir for each folder: nothing else that lies there goes.
; Silent: setup.exe /S /CurrentUser or /AllUsers, with /NOREHEARSE to leave the rehearsal PCs out; uninstall.exe /S, with
; /PURGE to take settings and backups too.

Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Kestrune"

!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_USE_PROGRAMFILES64
!define MULTIUSER_INSTALLMODE_INSTDIR "Kestrune"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${UNINSTALL_KEY}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME "InstallLocation"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${UNINSTALL_KEY}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME "InstallLocation"

!include MultiUser.nsh
!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include Sections.nsh

Name "Kestrune"
OutFile "${OUTPUT}"
BrandingText "Kestrune ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Kestrune"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Kestrune setup"
VIAddVersionKey "LegalCopyright" "GNU General Public License, version 3 or later"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
; By the desktop: the program must not get the administrator rights of its installer.
!define MUI_FINISHPAGE_RUN "$WINDIR\explorer.exe"
!define MUI_FINISHPAGE_RUN_PARAMETERS "$\"$INSTDIR\kestrune.exe$\""
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_COMPONENTS
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "French"

Section "Kestrune"
    SectionIn RO
    SetOutPath "$INSTDIR"
    File "${FILES}\kestrune.exe"
    File "${FILES}\kestrune-cli.exe"
    File "${FILES}\LICENSE.txt"
    File "${FILES}\README.txt"
    SetOutPath "$INSTDIR\profiles"
    File "${FILES}\profiles\*.json"
    SetOutPath "$INSTDIR\share\schemas"
    File "${FILES}\share\schemas\*.json"
    SetOutPath "$INSTDIR\img"
    File "${FILES}\img\*.png"
!if /FileExists "${FILES}/Translations/*.qm"
    SetOutPath "$INSTDIR\Translations"
    File "${FILES}\Translations\*.qm"
!endif
    ; The folder in which the shortcut starts
    SetOutPath "$INSTDIR"
    CreateShortCut "$SMPROGRAMS\Kestrune.lnk" "$INSTDIR\kestrune.exe"

    WriteUninstaller "$INSTDIR\uninstall.exe"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayName" "Kestrune"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\kestrune.exe"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "Publisher" "The Kestrune authors"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode'
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S /$MultiUser.InstallMode'
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

Section "Rehearsal PCs" SECTION_REHEARSE
    SetOutPath "$INSTDIR\rehearse"
    File /r "${FILES}\rehearse\*"
SectionEnd

Section "-Size"
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "EstimatedSize" $0
SectionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
    !insertmacro MUI_DESCRIPTION_TEXT ${SECTION_REHEARSE} "Tries every change on a simulated PC first."
!insertmacro MUI_FUNCTION_DESCRIPTION_END

Function .onInit
    SetRegView 64
    !insertmacro MULTIUSER_INIT
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/NOREHEARSE" $1
    ${IfNot} ${Errors}
        !insertmacro UnselectSection ${SECTION_REHEARSE}
    ${EndIf}
FunctionEnd

LangString STILL_IN_FORCE ${LANG_ENGLISH} "Kestrune has changed this PC, and its changes are still in force. Do you want \
to take them back first?"
LangString STILL_IN_FORCE ${LANG_FRENCH} "Kestrune a modifié ce PC, et ses modifications sont encore en vigueur. \
Voulez-vous d'abord les annuler ?"
LangString MAYBE_IN_FORCE ${LANG_ENGLISH} "Changes that Kestrune has made to this PC may still be in force. Do you want \
to look, and take them back first?"
LangString MAYBE_IN_FORCE ${LANG_FRENCH} "Des modifications faites par Kestrune sur ce PC sont peut-être encore en \
vigueur. Voulez-vous vérifier et les annuler d'abord ?"

; Asks while the program is still there; without its journal there is nothing to ask.
Function un.OfferWayBack
    ReadEnvStr $0 "ProgramData"
    ${IfNot} ${FileExists} "$0\Kestrune"
        Return
    ${EndIf}
    ClearErrors
    ExecWait '"$INSTDIR\kestrune.exe" --changes-in-force' $1
    ${If} ${Errors}
    ${OrIf} $1 = 0
        Return
    ${EndIf}
    StrCpy $2 $(STILL_IN_FORCE)
    ${If} $1 <> 1
        StrCpy $2 $(MAYBE_IN_FORCE)
    ${EndIf}
    MessageBox MB_YESNOCANCEL|MB_ICONQUESTION "$2" IDYES back IDNO go
    Abort
back:
    ExecShellWait "runas" "$INSTDIR\kestrune.exe" "--way-back"
go:
FunctionEnd

Section "un.Kestrune"
    SectionIn RO
    !include "${REMOVAL}"
    Delete "$SMPROGRAMS\Kestrune.lnk"
    DeleteRegKey SHCTX "${UNINSTALL_KEY}"
    Delete "$INSTDIR\uninstall.exe"
SectionEnd

; What was changed on this PC, and the way back, stays unless someone asks for its removal.
Section /o "un.Settings and backups" SECTION_PURGE
    Delete "$INSTDIR\backup_svc\StartMode.reg"
    RMDir "$INSTDIR\backup_svc"
    Delete "$INSTDIR\backup_tasks\tasks.xml"
    RMDir "$INSTDIR\backup_tasks"
    Delete "$INSTDIR\log.txt"
    DeleteRegKey HKCU "Software\Kestrune\Ondrevale"
    DeleteRegKey /ifempty HKCU "Software\Kestrune"
SectionEnd

Section "-un.Folder"
    ; Goes only if it is empty
    RMDir "$INSTDIR"
SectionEnd

Function un.onInit
    SetRegView 64
    !insertmacro MULTIUSER_UNINIT
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/PURGE" $1
    ${IfNot} ${Errors}
        !insertmacro SelectSection ${SECTION_PURGE}
    ${EndIf}
    ${IfNot} ${Silent}
        Call un.OfferWayBack
    ${EndIf}
FunctionEnd
