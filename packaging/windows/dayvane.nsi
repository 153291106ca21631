; SPDX-License-Identifier: MIT

; The installer for one user: no rights of an administrator, everything in one folder, where the program keeps the
; record beside itself. Called by scripts/package_windows.sh with /DVERSION=, /DSTAGE= (the folder of what is
; installed), /DKILOBYTES= (its size), /DICON=, /DPICTURE= (at the left of the first and last page) and /DOUTPUT=.

Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
SetDateSave off
AllowSkipFiles off ; without one of its files it would not be installed

!include "MUI2.nsh"
!include "LogicLib.nsh"

!define PRODUCT "Dayvane"
!define PROGRAM "$INSTDIR\dayvane.exe"
!define START_MENU_LINK "$SMPROGRAMS\${PRODUCT}.lnk"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${PRODUCT}"
!define REPLACED "*.dayvane-replaced" ; files of programs that ran on when they were replaced or removed

Name "${PRODUCT}"
OutFile "${OUTPUT}"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\${PRODUCT}"
; An upgrade goes where the program is.
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
BrandingText "${PRODUCT} ${VERSION}"
VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "${PRODUCT}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "${PRODUCT} Setup"
VIAddVersionKey "CompanyName" "Korvath"
VIAddVersionKey "LegalCopyright" "Copyright © 2026 The Dayvane authors"
ManifestDPIAware true

Var Runs ; "yes" while the program runs, also when it was started before its file was replaced

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${PICTURE}"
!define MUI_UNWELCOMEFINISHPAGE_BITMAP "${PICTURE}"
!define MUI_ABORTWARNING

!define MUI_WELCOMEPAGE_TEXT "Dayvane keeps a day-by-day record of the documents that you open. The record stays on this computer, in plain files, in the folder that the program is installed in.$\r$\n$\r$\nClick Next to continue."
!insertmacro MUI_PAGE_WELCOME
!define MUI_PAGE_CUSTOMFUNCTION_PRE SkipAtUpgrade
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_RUN "${PROGRAM}"
!define MUI_FINISHPAGE_RUN_TEXT "Start Dayvane"
!define MUI_PAGE_CUSTOMFUNCTION_SHOW TellThatItRunsOn
!insertmacro MUI_PAGE_FINISH

!define MUI_UNCONFIRMPAGE_TEXT_TOP "The program will be removed from this folder. Your record stays there: the days, the favorites and the logs. Click Uninstall to begin."
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!define MUI_FINISHPAGE_TITLE "Dayvane has been removed"
!define MUI_FINISHPAGE_TEXT "Your record is still where it was:$\r$\n$\r$\n$INSTDIR$\r$\n$\r$\nIt is plain files: the folder Daily with the shortcuts of each day, and Favorites.dat with the counts. A later installation into this folder finds it again. To delete the record, delete the folder."
!define MUI_FINISHPAGE_TEXT_LARGE
!insertmacro MUI_UNPAGE_FINISH

!insertmacro MUI_LANGUAGE "English"

; The record is beside the program; in another folder it would begin anew.
Function SkipAtUpgrade
  ReadRegStr $0 HKCU "${UNINSTALL_KEY}" "InstallLocation"
  ${If} $0 == $INSTDIR
  ${AndIf} ${FileExists} "${PROGRAM}"
    Abort
  ${EndIf}
FunctionEnd

; A second start would only say that the program runs.
Function TellThatItRunsOn
  ${If} $Runs == "yes"
    SendMessage $mui.FinishPage.Text ${WM_SETTEXT} 0 "STR:Dayvane ${VERSION} has been installed on your computer. The version that is running goes on until you end it (Exit in its menu); the next start is the new one.$\r$\n$\r$\nClick Finish to close Setup."
    SendMessage $mui.FinishPage.Run ${BM_SETCHECK} ${BST_UNCHECKED} 0
    ShowWindow $mui.FinishPage.Run ${SW_HIDE}
  ${EndIf}
FunctionEnd

!macro PROGRAM_FUNCTIONS un
; Deletes the predecessors of the program. One that still runs cannot be deleted, and is at the next occasion.
Function ${un}DeleteReplaced
  Delete "$TEMP\${REPLACED}"
  Delete "$INSTDIR\${REPLACED}"
  StrCpy $Runs "no"
  ${If} ${FileExists} "$TEMP\${REPLACED}"
  ${OrIf} ${FileExists} "$INSTDIR\${REPLACED}"
    StrCpy $Runs "yes"
  ${EndIf}
FunctionEnd

; Makes room where the program lies. The file of a program that runs can only be moved. It goes to the temporary files,
; so that a removal leaves nothing beside the record; where these are on another disk, moving would copy it, and it stays
; in the folder under another name.
Function ${un}PutProgramAway
  Call ${un}DeleteReplaced
  Delete "${PROGRAM}"
  ${If} ${FileExists} "${PROGRAM}"
    StrCpy $Runs "yes"
    Push "$TEMP"
    Call ${un}MoveProgram
  ${EndIf}
  ${If} ${FileExists} "${PROGRAM}"
    Push "$INSTDIR"
    Call ${un}MoveProgram
  ${EndIf}
  ${If} ${FileExists} "${PROGRAM}"
    SetErrorLevel 2
    MessageBox MB_OK|MB_ICONSTOP "The program in $INSTDIR cannot be replaced or removed. Please end it (Exit in its menu) and try again." /SD IDOK
    Abort
  ${EndIf}
FunctionEnd

; Into the folder on the stack.
Function ${un}MoveProgram
  Exch $1
  Push $0
  GetTempFileName $0 "$1"
  Delete "$0"
  Rename "${PROGRAM}" "$0.dayvane-replaced"
  ${If} ${FileExists} "${PROGRAM}"
    Delete "$0.dayvane-replaced" ; a copy
  ${EndIf}
  Pop $0
  Pop $1
FunctionEnd
!macroend
!insertmacro PROGRAM_FUNCTIONS ""
!insertmacro PROGRAM_FUNCTIONS "un."

Section
  SetOutPath "$INSTDIR"
  Call PutProgramAway
  File "${STAGE}/dayvane.exe"
  File "${STAGE}/Dayvane.hlp"
  File "${STAGE}/License.txt"
  WriteUninstaller "$INSTDIR\Uninstall.exe"
  CreateShortcut "${START_MENU_LINK}" "${PROGRAM}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "${PRODUCT}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "${PROGRAM}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "Korvath"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" ${KILOBYTES}
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

; Whoever removes the program expects it to end. Only the user ends it; without one to ask, it goes on until its end.
Function un.AskToEndIt
  ${DoUntil} ${Silent}
    Call un.DeleteReplaced
    ${If} $Runs == "no"
      Delete "${PROGRAM}"
      ${IfNot} ${FileExists} "${PROGRAM}"
        ${Break}
      ${EndIf}
    ${EndIf}
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Dayvane is still running. Please end it (Exit in its menu), then click Retry." IDRETRY again
    Abort
    again:
  ${Loop}
FunctionEnd

Section "Uninstall"
  Call un.AskToEndIt
  Call un.PutProgramAway
  Delete "$INSTDIR\Dayvane.hlp"
  Delete "$INSTDIR\License.txt"
  Delete "${START_MENU_LINK}"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  ; Gone only when it is empty: the record is the user's.
  SetOutPath "$TEMP"
  Delete "$INSTDIR\Uninstall.exe"
  RMDir "$INSTDIR"
SectionEnd
