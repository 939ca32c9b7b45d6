; SPDX-License-Identifier: GPL-3.0-or-later
; The installer: for one user without administrator rights, or for all users of the PC.
; makensis -DVERSION=… -DFILES=folder -DREMOVAL=file -DICON=file -DOUTPUT=file kestrune.nsi
; The file of REMOVAL has a Delete for each packed file, and an RMDir for each folder: nothing else that lies there goes.
; Silent: setup.exe /S /CurrentUser or /AllUsers, with /NOREHEARSE to leave the rehearsal PCs out, and /PATH to put the
; folder on PATH; uninstall.exe /S, with /PURGE to take settings and backups too.

Unicode true
Target amd64-unicode
; Not solid: scanners look into each file by itself, and what one of them has against a file says which.
SetCompressor lzma
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
!include StrFunc.nsh
${Using:StrFunc} StrStr
${Using:StrFunc} UnStrStr
${Using:StrFunc} UnStrRep

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

!define HKEY_CURRENT_USER_NUMBER 0x80000001
!define HKEY_LOCAL_MACHINE_NUMBER 0x80000002
!define ENVIRONMENT_OF_PC "SYSTEM\CurrentControlSet\Control\Session Manager\Environment"
!define ENVIRONMENT_OF_USER "Environment"
; Texts of this installer hold 1,023 characters; a PATH that is longer than this would be cut, and is left alone.
!define MOST_BYTES_OF_PATH 1600
!define STATUS_NOT_FOUND 2

; $1 gets PATH as it stands in the registry, or the section ends: with nothing changed where it can't be read as a whole.
!macro READ_PATH
    ${If} $MultiUser.InstallMode == "AllUsers"
        StrCpy $3 ${HKEY_LOCAL_MACHINE_NUMBER}
        StrCpy $4 "${ENVIRONMENT_OF_PC}"
    ${Else}
        StrCpy $3 ${HKEY_CURRENT_USER_NUMBER}
        StrCpy $4 "${ENVIRONMENT_OF_USER}"
    ${EndIf}
    ; RRF_RT_REG_SZ, RRF_RT_REG_EXPAND_SZ, RRF_NOEXPAND: only its size
    System::Call 'advapi32::RegGetValueW(p r3, w r4, w "Path", i 0x10000006, p 0, p 0, *i .r5) i .r6'
    StrCpy $1 ""
    ${If} $6 <> ${STATUS_NOT_FOUND}
        ${If} $6 <> 0
        ${OrIf} $5 > ${MOST_BYTES_OF_PATH}
            DetailPrint "PATH is too long for this program to change it, and is left alone."
            Return
        ${EndIf}
        ${If} $3 == ${HKEY_LOCAL_MACHINE_NUMBER}
            ReadRegStr $1 HKLM "${ENVIRONMENT_OF_PC}" "Path"
        ${Else}
            ReadRegStr $1 HKCU "${ENVIRONMENT_OF_USER}" "Path"
        ${EndIf}
    ${EndIf}
!macroend

!macro WRITE_PATH
    ${If} $3 == ${HKEY_LOCAL_MACHINE_NUMBER}
        WriteRegExpandStr HKLM "${ENVIRONMENT_OF_PC}" "Path" "$1"
    ${Else}
        WriteRegExpandStr HKCU "${ENVIRONMENT_OF_USER}" "Path" "$1"
    ${EndIf}
    SendMessage ${HWND_BROADCAST} ${WM_SETTINGCHANGE} 0 "STR:Environment" /TIMEOUT=5000
!macroend

Section "Kestrune"
    SectionIn RO
    SetOutPath "$INSTDIR"
    File "${FILES}\kestrune.exe"
    File "${FILES}\kestrune-cli.exe"
    File "${FILES}\LICENSE.txt"
    File "${FILES}\README.txt"
    File "${FILES}\kestrune.dsc.resource.json"
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

Section /o "kestrune-cli on PATH" SECTION_PATH
    !insertmacro READ_PATH
    ${StrStr} $2 ";$1;" ";$INSTDIR;"
    ${If} $2 == ""
        ${If} $1 == ""
            StrCpy $1 "$INSTDIR"
        ${Else}
            StrCpy $1 "$1;$INSTDIR"
        ${EndIf}
        !insertmacro WRITE_PATH
    ${EndIf}
SectionEnd

Section "-Size"
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "EstimatedSize" $0
SectionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
    !insertmacro MUI_DESCRIPTION_TEXT ${SECTION_REHEARSE} "Tries every change on a simulated PC first."
    !insertmacro MUI_DESCRIPTION_TEXT ${SECTION_PATH} "Lets consoles and Desired State Configuration find kestrune-cli."
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
    ClearErrors
    ${GetOptions} $0 "/PATH" $1
    ${IfNot} ${Errors}
        !insertmacro SelectSection ${SECTION_PATH}
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

Section "-un.PATH"
    !insertmacro READ_PATH
    ${UnStrStr} $2 ";$1;" ";$INSTDIR;"
    ${If} $2 != ""
        ${UnStrRep} $1 ";$1;" ";$INSTDIR;" ";"
        StrCpy $1 $1 -1 1
        ${If} $1 == ";"
            StrCpy $1 ""
        ${EndIf}
        ${If} $1 == ""
        ${AndIf} $3 == ${HKEY_CURRENT_USER_NUMBER}
            DeleteRegValue HKCU "${ENVIRONMENT_OF_USER}" "Path"
        ${Else}
            !insertmacro WRITE_PATH
        ${EndIf}
    ${EndIf}
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
