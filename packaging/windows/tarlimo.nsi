; The installer: for one user, 64 bits, without administrator rights, into a folder that its user may write, since all
; data lie beside the program. It brings only what a new version replaces; what users change is put in place by the
; program, where it is missing. So installing over an older version and uninstalling leave all data where they are.
;
; From the command line (see `make`): VERSION "1.0.0"; FOLDER, what is installed; UNINSTALL_LIST, a script that removes
; exactly that; OUTPUT, the installer.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
ManifestSupportedOS Win10
ManifestDPIAware true
RequestExecutionLevel user

!include MUI2.nsh
!include LogicLib.nsh
!include WinVer.nsh

!define REGISTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tarlimo"
Name "Tarlimo"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Tarlimo"
InstallDirRegKey HKCU "${REGISTRY}" "InstallLocation"
ShowInstDetails nevershow
ShowUninstDetails nevershow
BrandingText "Tarlimo ${VERSION}"

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=1038 "ProductName" "Tarlimo"
VIAddVersionKey /LANG=1038 "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=1038 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=1038 "FileDescription" "Tarlimo telepítő"
VIAddVersionKey /LANG=1038 "LegalCopyright" ""

!define MUI_ICON "${FOLDER}/tarlimo.ico"
!define MUI_UNICON "${FOLDER}/tarlimo.ico"
!define MUI_WELCOMEPAGE_TEXT "Ez a varázsló telepíti a Tarlimo programot a saját felhasználói fiókodba, rendszergazdai jog nélkül.$\r$\n$\r$\nHa egy korábbi változat már fent van, annak minden adata és beállítása megmarad. Előtte zárd be a programot!"
!define MUI_DIRECTORYPAGE_TEXT_TOP "Az ügyfelek adatai és a beállítások is ebbe a mappába kerülnek, ezért olyan mappát válassz, amelyet írhatsz."
!define MUI_FINISHPAGE_RUN "$INSTDIR\Tarlimo.exe"
!define MUI_FINISHPAGE_TEXT "A Tarlimo települt.$\r$\n$\r$\nAz adatok helye, amelyet érdemes rendszeresen menteni:$\r$\n$INSTDIR"
!define MUI_UNCONFIRMPAGE_TEXT_TOP "A program törlése. Az ügyfelek adatai, a beállítások és a nyomtatott PDF-fájlok megmaradnak a mappában."
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Hungarian"

; A running program holds its file, so that it can't be replaced or removed. Without a window to ask in, that is the end.
!macro WaitForProgram
  ${While} ${FileExists} "$INSTDIR\Tarlimo.exe"
    ClearErrors
    FileOpen $0 "$INSTDIR\Tarlimo.exe" a
    ${IfNot} ${Errors}
      FileClose $0
      ${Break}
    ${EndIf}
    ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "A Tarlimo fut, vagy a mappája nem írható:$\r$\n$INSTDIR$\r$\n$\r$\nZárd be a programot, és próbáld újra!" /SD IDCANCEL IDCANCEL`
      SetErrorLevel 2
      Abort
    ${EndIf}
  ${EndWhile}
!macroend

Function .onInit
  ${IfNot} ${AtLeastWin10}
    MessageBox MB_OK|MB_ICONSTOP "A Tarlimo legalább Windows 10 rendszert kíván." /SD IDOK
    SetErrorLevel 2
    Abort
  ${EndIf}
FunctionEnd

Section
  !insertmacro WaitForProgram
  SetOutPath "$INSTDIR"
  SetOverwrite on
  File /r "${FOLDER}/*"
  WriteUninstaller "$INSTDIR\Eltavolitas.exe"

  CreateShortCut "$SMPROGRAMS\Tarlimo.lnk" "$INSTDIR\Tarlimo.exe"
  CreateShortCut "$DESKTOP\Tarlimo.lnk" "$INSTDIR\Tarlimo.exe"
  WriteRegStr HKCU "${REGISTRY}" "DisplayName" "Tarlimo"
  WriteRegStr HKCU "${REGISTRY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${REGISTRY}" "DisplayIcon" "$INSTDIR\tarlimo.ico"
  WriteRegStr HKCU "${REGISTRY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${REGISTRY}" "UninstallString" '"$INSTDIR\Eltavolitas.exe"'
  WriteRegStr HKCU "${REGISTRY}" "QuietUninstallString" '"$INSTDIR\Eltavolitas.exe" /S'
  WriteRegDWORD HKCU "${REGISTRY}" "NoModify" 1
  WriteRegDWORD HKCU "${REGISTRY}" "NoRepair" 1
  SectionGetSize 0 $0
  WriteRegDWORD HKCU "${REGISTRY}" "EstimatedSize" $0
SectionEnd

Section Uninstall
  !insertmacro WaitForProgram
  !include "${UNINSTALL_LIST}"
  Delete "$INSTDIR\Eltavolitas.exe"
  Delete "$SMPROGRAMS\Tarlimo.lnk"
  Delete "$DESKTOP\Tarlimo.lnk"
  DeleteRegKey HKCU "${REGISTRY}"
  SetOutPath "$TEMP" ; nobody may stand in a folder that goes
  RMDir "$INSTDIR"   ; only if it is empty
  ${If} ${FileExists} "$INSTDIR\*"
    MessageBox MB_OK|MB_ICONINFORMATION "A programot töröltem. Az adatok és a beállítások itt maradtak:$\r$\n$INSTDIR" /SD IDOK
  ${EndIf}
SectionEnd
