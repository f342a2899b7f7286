; Installs the programs for one user or for the whole machine. The Start menu lists the buildings.
; makensis -DVERSIONE=.. -DCONTENUTO=FOLDER -DELENCO=FILE -DUSCITA=FILE kit-ambra.nsi
Target amd64-unicode
SetCompressor /SOLID lzma
!define NOME "Kit Ambra"
!define DISINSTALLA "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NOME}"
!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_USE_PROGRAMFILES64
!define MULTIUSER_INSTALLMODE_INSTDIR "${NOME}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "Software\${NOME}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME "Cartella"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "Software\${NOME}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME "Cartella"
!define MUI_ICON "kit-ambra.ico"
!define MUI_UNICON "kit-ambra.ico"
!define MUI_ABORTWARNING
!include MultiUser.nsh
!include MUI2.nsh

Name "${NOME}"
OutFile "${USCITA}"
VIProductVersion "${VERSIONE}.0"
VIAddVersionKey ProductName "${NOME}"
VIAddVersionKey FileDescription "Installazione di ${NOME}"
VIAddVersionKey FileVersion "${VERSIONE}"
VIAddVersionKey LegalCopyright "2026 The Kit Ambra authors"

!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE Italian

Function .onInit
  !insertmacro MULTIUSER_INIT
FunctionEnd

Function un.onInit
  !insertmacro MULTIUSER_UNINIT
FunctionEnd

Section
  SetOutPath $INSTDIR
  File /r "${CONTENUTO}/*"
  WriteUninstaller "$INSTDIR\disinstalla.exe"
  CreateDirectory "$SMPROGRAMS\${NOME}"
  CreateShortcut "$SMPROGRAMS\${NOME}\${NOME}.lnk" "$INSTDIR\vexoraf.exe" "--scegli"
  CreateShortcut "$SMPROGRAMS\${NOME}\Manuale.lnk" "$INSTDIR\manuale.html"
  WriteRegStr SHCTX "Software\${NOME}" "Cartella" $INSTDIR
  WriteRegStr SHCTX "${DISINSTALLA}" "DisplayName" "${NOME}"
  WriteRegStr SHCTX "${DISINSTALLA}" "DisplayVersion" "${VERSIONE}"
  WriteRegStr SHCTX "${DISINSTALLA}" "Publisher" "The Kit Ambra authors"
  WriteRegStr SHCTX "${DISINSTALLA}" "DisplayIcon" "$INSTDIR\vexoraf.exe"
  WriteRegStr SHCTX "${DISINSTALLA}" "UninstallString" '"$INSTDIR\disinstalla.exe" /$MultiUser.InstallMode'
  WriteRegStr SHCTX "${DISINSTALLA}" "QuietUninstallString" '"$INSTDIR\disinstalla.exe" /$MultiUser.InstallMode /S'
  WriteRegDWORD SHCTX "${DISINSTALLA}" "NoModify" 1
  WriteRegDWORD SHCTX "${DISINSTALLA}" "NoRepair" 1
SectionEnd

; Only what was installed goes: archives, copies and settings of the users stay.
Section Uninstall
  !include "${ELENCO}"
  Delete "$INSTDIR\disinstalla.exe"
  RMDir $INSTDIR
  Delete "$SMPROGRAMS\${NOME}\${NOME}.lnk"
  Delete "$SMPROGRAMS\${NOME}\Manuale.lnk"
  RMDir "$SMPROGRAMS\${NOME}"
  DeleteRegKey SHCTX "${DISINSTALLA}"
  DeleteRegKey SHCTX "Software\${NOME}"
SectionEnd
