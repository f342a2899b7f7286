; For whoever unpacks the zip: links to the program beside it, on this user's desktop and Start menu.
; makensis -DUSCITA=FILE collegamenti.nsi
Target amd64-unicode
SetCompressor lzma
RequestExecutionLevel user
!define NOME "Kit Ambra"
Name "${NOME}"
OutFile "${USCITA}"
Icon "kit-ambra.ico"
SilentInstall silent
LoadLanguageFile "${NSISDIR}\Contrib\Language files\Italian.nlf"

Section
  IfFileExists "$EXEDIR\vexoraf.exe" c_e
  MessageBox MB_ICONSTOP "vexoraf.exe non si trova in $EXEDIR: estrarre prima tutto il contenuto del file zip." /SD IDOK
  SetErrorLevel 2
  Quit
c_e:
  SetOutPath $EXEDIR
  CreateShortcut "$DESKTOP\${NOME}.lnk" "$EXEDIR\vexoraf.exe" "--scegli"
  CreateShortcut "$SMPROGRAMS\${NOME}.lnk" "$EXEDIR\vexoraf.exe" "--scegli"
  MessageBox MB_OK "${NOME} si apre ora dal desktop e dal menu Start." /SD IDOK
SectionEnd
