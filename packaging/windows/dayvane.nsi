; SPDX-License-Identifier: MIT

; The installer for one user: no rights of an administrator, everything in one folder, where the program keeps the
; record beside itself. Called by scripts/package_windows.sh with /DVERSION=, /DBUILD= (the built program's folder),
; /DSOURCE= (the project's folder) and /DOUTPUT=.

Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
SetDateSave off

!include "MUI2.nsh"

!define PRODUCT "Dayvane"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${PRODUCT}"

Name "${PRODUCT}"
OutFile "${OUTPUT}"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\${PRODUCT}"
; An upgrade goes where the program is.
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
BrandingText "${PRODUCT} ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "${PRODUCT}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "${PRODUCT} Setup"
VIAddVersionKey "CompanyName" "Korvath"
VIAddVersionKey "LegalCopyright" "Copyright © 2026 The Dayvane authors"
ManifestDPIAware true

!define MUI_ICON "${ICONS}/dayvane.ico"
!define MUI_UNICON "${ICONS}/dayvane.ico"
!define MUI_ABORTWARNING

!define MUI_WELCOMEPAGE_TEXT "Dayvane keeps a day-by-day record of the documents that you open. The record stays on this computer, in plain files, in the folder that the program is installed in.$\r$\n$\r$\nClick Next to continue."
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_RUN "$INSTDIR\dayvane.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Start Dayvane"
!insertmacro MUI_PAGE_FINISH

!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!define MUI_FINISHPAGE_TITLE "Dayvane has been removed"
!define MUI_FINISHPAGE_TEXT "Your record has been left where it is:$\r$\n$\r$\n$INSTDIR$\r$\n$\r$\nIt is plain files: the folder Daily with the shortcuts of each day, and Favorites.dat with the counts. A later installation into this folder finds it again. Delete the folder to delete the record."
!insertmacro MUI_UNPAGE_FINISH

!insertmacro MUI_LANGUAGE "English"

; A program that runs goes on with its file under another name; the next start is the new one.
!macro MOVE_OLD_PROGRAM_AWAY
  ClearErrors
  Delete "$INSTDIR\dayvane.exe"
  ${If} ${Errors}
    GetTempFileName $0 "$INSTDIR"
    Delete "$0"
    ClearErrors
    Rename "$INSTDIR\dayvane.exe" "$0"
    ${If} ${Errors}
      MessageBox MB_OK|MB_ICONSTOP "Dayvane cannot be replaced in $INSTDIR. Please end the program (E&xit in its menu) and try again." /SD IDOK
      Abort
    ${EndIf}
    Delete /REBOOTOK "$0"
  ${EndIf}
!macroend

Section
  SetOutPath "$INSTDIR"
  !insertmacro MOVE_OLD_PROGRAM_AWAY
  File "${BUILD}/dayvane.exe"
  File "${BUILD}/Dayvane.hlp"
  File /oname=License.txt "${SOURCE}/LICENSE"
  WriteUninstaller "$INSTDIR\Uninstall.exe"
  CreateShortcut "$SMPROGRAMS\${PRODUCT}.lnk" "$INSTDIR\dayvane.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "${PRODUCT}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\dayvane.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "Korvath"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

Section "Uninstall"
  !insertmacro MOVE_OLD_PROGRAM_AWAY
  Delete "$INSTDIR\Dayvane.hlp"
  Delete "$INSTDIR\License.txt"
  Delete "$INSTDIR\Uninstall.exe"
  Delete "$SMPROGRAMS\${PRODUCT}.lnk"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  ; Gone only when it is empty: the record is the user's.
  SetOutPath "$TEMP"
  RMDir "$INSTDIR"
SectionEnd
