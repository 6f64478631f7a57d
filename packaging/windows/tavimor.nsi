; The installer for Windows, made by package.sh, which gives VERSION, PROGRAM (the folder to install), SIZE (in KB),
; REMOVED (the commands that remove its files again), ICON and OUT.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true

; For whoever runs it, or for all users of the machine where that person may.
!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_USE_PROGRAMFILES64
!define MULTIUSER_INSTALLMODE_INSTDIR Tavimor
!define SETTINGS "Software\Tavimor Installer"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${SETTINGS}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME Folder
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${SETTINGS}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME Folder
!include MultiUser.nsh
!include MUI2.nsh

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tavimor"
!define CLASSES "Software\Classes"
!define OPENS '"$INSTDIR\bin\tavimor.exe" "%1"'

Name Tavimor
OutFile "${OUT}"
BrandingText "Tavimor ${VERSION}"
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\bin\tavimor.exe"
!insertmacro MUI_PAGE_LICENSE "${PROGRAM}\share\doc\tavimor\copyright"
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

Function .onInit
  !insertmacro MULTIUSER_INIT
FunctionEnd

Function un.onInit
  !insertmacro MULTIUSER_UNINIT
FunctionEnd

; The shell asks again which program opens what.
!macro TellShell
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend

Section
  SetOutPath $INSTDIR
  File /r "${PROGRAM}\*"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr SHCTX "${SETTINGS}" Folder $INSTDIR

  ; The working folder of a program that is started from a shortcut is its user's.
  SetOutPath $DOCUMENTS
  CreateShortCut "$SMPROGRAMS\Tavimor.lnk" "$INSTDIR\bin\tavimor.exe"
  SetOutPath $INSTDIR

  WriteRegStr SHCTX "${CLASSES}\Tavimor.Problem" "" "Tavimor problem"
  WriteRegStr SHCTX "${CLASSES}\Tavimor.Problem\DefaultIcon" "" "$INSTDIR\bin\tavimor.exe,0"
  WriteRegStr SHCTX "${CLASSES}\Tavimor.Problem\shell\open\command" "" '${OPENS}'
  WriteRegStr SHCTX "${CLASSES}\.tavimor" "" Tavimor.Problem
  WriteRegStr SHCTX "${CLASSES}\.tavimor\OpenWithProgids" Tavimor.Problem ""
  ; A problem may have any name: so the program is offered in "Open with" for every file.
  WriteRegStr SHCTX "${CLASSES}\Applications\tavimor.exe" FriendlyAppName Tavimor
  WriteRegStr SHCTX "${CLASSES}\Applications\tavimor.exe\shell\open\command" "" '${OPENS}'
  WriteRegStr SHCTX "${CLASSES}\*\OpenWithList\tavimor.exe" "" ""

  WriteRegStr SHCTX "${UNINSTALL}" DisplayName Tavimor
  WriteRegStr SHCTX "${UNINSTALL}" DisplayVersion "${VERSION}"
  WriteRegStr SHCTX "${UNINSTALL}" DisplayIcon "$INSTDIR\bin\tavimor.exe,0"
  WriteRegStr SHCTX "${UNINSTALL}" Publisher "the Tavimor developers"
  WriteRegStr SHCTX "${UNINSTALL}" InstallLocation $INSTDIR
  WriteRegStr SHCTX "${UNINSTALL}" UninstallString '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode'
  WriteRegStr SHCTX "${UNINSTALL}" QuietUninstallString '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode /S'
  WriteRegDWORD SHCTX "${UNINSTALL}" EstimatedSize ${SIZE}
  WriteRegDWORD SHCTX "${UNINSTALL}" NoModify 1
  WriteRegDWORD SHCTX "${UNINSTALL}" NoRepair 1
  !insertmacro TellShell
SectionEnd

; Only what was installed goes: files of the user's beside it stay.
Section Uninstall
  !include "${REMOVED}"
  Delete "$INSTDIR\uninstall.exe"
  RMDir $INSTDIR
  Delete "$SMPROGRAMS\Tavimor.lnk"
  DeleteRegKey SHCTX "${CLASSES}\Tavimor.Problem"
  DeleteRegValue SHCTX "${CLASSES}\.tavimor\OpenWithProgids" Tavimor.Problem
  ReadRegStr $0 SHCTX "${CLASSES}\.tavimor" ""
  StrCmp $0 Tavimor.Problem 0 +2
  DeleteRegValue SHCTX "${CLASSES}\.tavimor" ""
  DeleteRegKey /ifempty SHCTX "${CLASSES}\.tavimor\OpenWithProgids"
  DeleteRegKey /ifempty SHCTX "${CLASSES}\.tavimor"
  DeleteRegKey SHCTX "${CLASSES}\Applications\tavimor.exe"
  DeleteRegKey SHCTX "${CLASSES}\*\OpenWithList\tavimor.exe"
  DeleteRegKey SHCTX "${UNINSTALL}"
  DeleteRegKey SHCTX "${SETTINGS}"
  !insertmacro TellShell
SectionEnd
