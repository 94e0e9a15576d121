; The Windows installer, for the current user alone. Made by ./package:
;   makensis -DVERSION=1.0.0 -DSTAGE=FOLDER -DOUTPUT=FILE [-DFAST] installer.nsi
; STAGE is what packaging/stage.py laid out; FAST packs quickly instead of small.
;
; Silent: setup.exe /S [/D=FOLDER]; exit status 2 and nothing changed while the program runs.
; Removal: uninstall.exe [/S] [/DELETEDATA], which without the last keeps words, settings and texts.

Unicode true
Target amd64-unicode
!ifdef FAST
  SetCompressor zlib
!else
  SetCompressor /SOLID lzma
!endif

!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh
!include "${STAGE}/../files.nsh"

!define NAME "Wordhawk"
!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NAME}"
!define APP_PATH "Software\Microsoft\Windows\CurrentVersion\App Paths\${NAME}.exe"
!define CLASSES "Software\Classes"
!define DOCUMENT "${NAME}.Document"

Name "${NAME}"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\${NAME}"
InstallDirRegKey HKCU "${UNINSTALL}" "InstallLocation"
RequestExecutionLevel user
ManifestDPIAware true
BrandingText "${NAME} ${VERSION}"

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "${NAME}"
VIAddVersionKey "FileDescription" "${NAME} setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" ""

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\${NAME}.exe"
!insertmacro MUI_PAGE_LICENSE "${STAGE}/LICENSE.txt"
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!include installer_texts.nsh

; Explorer looks again at what opens which file.
!macro TellExplorer
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend

!macro LookForRunning PROGRAM
  ${If} ${FileExists} "$INSTDIR\${PROGRAM}"
    ClearErrors
    FileOpen $1 "$INSTDIR\${PROGRAM}" a
    ${If} ${Errors}
      StrCpy $0 1
    ${Else}
      FileClose $1
    ${EndIf}
  ${EndIf}
!macroend

; Asks until no copy out of $INSTDIR runs any more. Silent, it gives up with exit status 2.
!macro RequireClosed UN
Function ${UN}RequireClosed
  ${Do}
    StrCpy $0 0
    ; A program that runs cannot be opened for writing, with a window or (for automation) without.
    !insertmacro LookForRunning "${NAME}.exe"
    !insertmacro LookForRunning "wordhawk-cli.exe"
    ${If} $0 = 0
      Return
    ${EndIf}
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(TextRunning)" /SD IDCANCEL IDRETRY again
    SetErrorLevel 2
    Quit
    again:
  ${Loop}
FunctionEnd
!macroend
!insertmacro RequireClosed ""
!insertmacro RequireClosed "un."

Section "$(TextProgram)" SectionProgram
  SectionIn RO
  Call RequireClosed
  ; What an older version brought and this one does not.
  !insertmacro RemoveFiles
  SetOverwrite on
  !insertmacro InstallFiles
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\uninstall.exe"

  WriteRegStr HKCU "${APP_PATH}" "" "$INSTDIR\${NAME}.exe"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "${NAME}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\${NAME}.exe"
  WriteRegStr HKCU "${UNINSTALL}" "Publisher" "${NAME}"
  WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" $0
SectionEnd

Section "$(TextStartMenu)" SectionStartMenu
  CreateShortcut "$SMPROGRAMS\${NAME}.lnk" "$INSTDIR\${NAME}.exe"
SectionEnd

Section "$(TextOpenWith)" SectionOpenWith
  WriteRegStr HKCU "${CLASSES}\${DOCUMENT}" "" "${NAME}"
  WriteRegStr HKCU "${CLASSES}\${DOCUMENT}\DefaultIcon" "" "$INSTDIR\${NAME}.exe,0"
  WriteRegStr HKCU "${CLASSES}\${DOCUMENT}\shell\open\command" "" '"$INSTDIR\${NAME}.exe" "%1"'
  WriteRegStr HKCU "${CLASSES}\Applications\${NAME}.exe" "FriendlyAppName" "${NAME}"
  WriteRegStr HKCU "${CLASSES}\Applications\${NAME}.exe\shell\open\command" "" '"$INSTDIR\${NAME}.exe" "%1"'
  WriteRegStr HKCU "${CLASSES}\Applications\${NAME}.exe\SupportedTypes" ".txt" ""
  WriteRegStr HKCU "${CLASSES}\Applications\${NAME}.exe\SupportedTypes" ".rtf" ""
  ; Offered beside what opens these files; never instead of it.
  WriteRegStr HKCU "${CLASSES}\.txt\OpenWithProgids" "${DOCUMENT}" ""
  WriteRegStr HKCU "${CLASSES}\.rtf\OpenWithProgids" "${DOCUMENT}" ""
  !insertmacro TellExplorer
SectionEnd

Section "$(TextSendTo)" SectionSendTo
  CreateShortcut "$SENDTO\${NAME}.lnk" "$INSTDIR\${NAME}.exe"
SectionEnd

Section "$(TextAutomation)" SectionAutomation
  nsExec::Exec /TIMEOUT=60000 '"$INSTDIR\${NAME}.exe" /RegServer /Quiet'
  Pop $0
SectionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${SectionAutomation} "$(TextAutomationMore)"
!insertmacro MUI_FUNCTION_DESCRIPTION_END

Section "Uninstall"
  Call un.RequireClosed
  nsExec::Exec /TIMEOUT=60000 '"$INSTDIR\${NAME}.exe" /UnregServer /Quiet'
  Pop $0
  Delete "$SMPROGRAMS\${NAME}.lnk"
  Delete "$SENDTO\${NAME}.lnk"
  DeleteRegKey HKCU "${CLASSES}\${DOCUMENT}"
  DeleteRegKey HKCU "${CLASSES}\Applications\${NAME}.exe"
  DeleteRegValue HKCU "${CLASSES}\.txt\OpenWithProgids" "${DOCUMENT}"
  DeleteRegValue HKCU "${CLASSES}\.rtf\OpenWithProgids" "${DOCUMENT}"
  !insertmacro TellExplorer
  DeleteRegKey HKCU "${APP_PATH}"
  DeleteRegKey HKCU "${UNINSTALL}"
  Delete "$INSTDIR\uninstall.exe"
  !insertmacro RemoveFiles
  ; Goes when nothing of anyone else's is in it.
  RMDir "$INSTDIR"

  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/DELETEDATA" $1
  ${If} ${Errors}
    MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 "$(TextDeleteData)" /SD IDNO IDNO keep
  ${EndIf}
  RMDir /r "$APPDATA\${NAME}\${NAME}"
  RMDir "$APPDATA\${NAME}"
  DeleteRegKey HKCU "Software\${NAME}\${NAME}"
  DeleteRegKey /ifempty HKCU "Software\${NAME}"
  keep:
SectionEnd
