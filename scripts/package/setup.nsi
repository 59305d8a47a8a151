; The installer, for makensis -DNAME=3.0.6 -DNUMBER=3.0.6 -DFILES=folder -DPICTURES=folder
; -DKILOBYTES=size -DOUTPUT=file. With -DSIGN=command the uninstaller is signed too.
;
; It installs for the current user alone and asks for no rights. Whatever it removes is named here,
; file by file: a folder is removed only when it is empty.
;
; Exit codes: 0 done, 1 cancelled, 2 the installer is damaged or has no room for its temporary
; files, 3 the program runs, 4 a newer version is installed, 5 the files cannot be written.

Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
SetDateSave off
CRCCheck on
RequestExecutionLevel user
ManifestDPIAware true
AllowSkipFiles off

!include MUI2.nsh
!include LogicLib.nsh
!include WordFunc.nsh

!define PUBLISHER "NORVAK Incorporated"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tessaline"
!define ESTIMATES "$LOCALAPPDATA\NORVAK\Tessaline\Estimates"
!define PROGRAM "$INSTDIR\Tessaline.exe"

Name "Tessaline"
BrandingText "Tessaline ${NAME}"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Tessaline"
; An upgrade goes where the program is.
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"

VIProductVersion "${NUMBER}.0"
VIAddVersionKey "CompanyName" "${PUBLISHER}"
VIAddVersionKey "FileDescription" "Tessaline setup"
VIAddVersionKey "FileVersion" "${NUMBER}"
VIAddVersionKey "LegalCopyright" "(c) 2026 ${PUBLISHER}. All rights reserved."
VIAddVersionKey "ProductName" "Tessaline"
VIAddVersionKey "ProductVersion" "${NUMBER}"

!ifdef SIGN
  !uninstfinalize '${SIGN} "%1"'
!endif

; ---- the pages

!define MUI_ICON "${FILES}\tessaline.ico"
!define MUI_UNICON "${FILES}\tessaline.ico"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${PICTURES}\wizard-96.bmp"
!define MUI_UNWELCOMEFINISHPAGE_BITMAP "${PICTURES}\wizard-96.bmp"
; Fonts differ in width: the height alone counts, so that the icon stays square.
!define MUI_WELCOMEFINISHPAGE_BITMAP_STRETCH AspectFitHeight
!define MUI_UNWELCOMEFINISHPAGE_BITMAP_STRETCH AspectFitHeight
!define MUI_ABORTWARNING

!define MUI_WELCOMEPAGE_TITLE "Tessaline ${NAME}"
!define MUI_WELCOMEPAGE_TEXT "Good Faith Estimates for uninsured and self-pay patients.$\r$\n$\r$\n\
  Setup installs Tessaline for your Windows account. It needs no administrator.$\r$\n$\r$\n\
  Estimates that you have saved before stay as they are.$\r$\n$\r$\nChoose Install to go on."
!define MUI_PAGE_CUSTOMFUNCTION_PRE SharpPicture
!define MUI_PAGE_CUSTOMFUNCTION_SHOW NameInstall
!insertmacro MUI_PAGE_WELCOME

!insertmacro MUI_PAGE_INSTFILES

!define MUI_FINISHPAGE_TITLE "Tessaline is installed"
!define MUI_FINISHPAGE_TEXT "You find it in the Start menu, and the guide beside it."
!define MUI_FINISHPAGE_RUN "${PROGRAM}"
!define MUI_FINISHPAGE_RUN_TEXT "Start Tessaline now"
!define MUI_FINISHPAGE_SHOWREADME ""
!define MUI_FINISHPAGE_SHOWREADME_NOTCHECKED
!define MUI_FINISHPAGE_SHOWREADME_TEXT "Make a desktop shortcut"
!define MUI_FINISHPAGE_SHOWREADME_FUNCTION MakeDesktopShortcut
!insertmacro MUI_PAGE_FINISH

!define MUI_UNCONFIRMPAGE_TEXT_TOP "Tessaline will be removed from your Windows account. Your \
  estimates are kept. They stay in the folder$\r$\n${ESTIMATES}"
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!define MUI_FINISHPAGE_TITLE "Tessaline is removed"
!define MUI_FINISHPAGE_TEXT "Your estimates are kept. They are in the folder$\r$\n$\r$\n${ESTIMATES}\
  $\r$\n$\r$\nOnly your Windows account can read them, with Tessaline."
!define MUI_PAGE_CUSTOMFUNCTION_PRE un.SharpPicture
!insertmacro MUI_UNPAGE_FINISH

!insertmacro MUI_LANGUAGE English

; The wizard's picture in the size that the screen needs, so that Windows does not stretch it.
!macro SharpPicture prefix
Function ${prefix}SharpPicture
  Push $0
  Push $1
  System::Call 'user32::GetDC(p 0) p .r0'
  System::Call 'gdi32::GetDeviceCaps(p r0, i 88) i .r1'
  System::Call 'user32::ReleaseDC(p 0, p r0)'
  ${If} $1 > 168
    File "/oname=$PLUGINSDIR\modern-wizard.bmp" "${PICTURES}\wizard-192.bmp"
  ${ElseIf} $1 > 132
    File "/oname=$PLUGINSDIR\modern-wizard.bmp" "${PICTURES}\wizard-144.bmp"
  ${ElseIf} $1 > 108
    File "/oname=$PLUGINSDIR\modern-wizard.bmp" "${PICTURES}\wizard-120.bmp"
  ${EndIf}
  Pop $1
  Pop $0
FunctionEnd
!macroend
!insertmacro SharpPicture ""
!insertmacro SharpPicture "un."

Function NameInstall
  GetDlgItem $0 $HWNDPARENT 1
  SendMessage $0 ${WM_SETTEXT} 0 "STR:&Install"
FunctionEnd

Function MakeDesktopShortcut
  SetOutPath "$INSTDIR"
  CreateShortcut "$DESKTOP\Tessaline.lnk" "${PROGRAM}"
FunctionEnd

; ---- a running program

; Windows lets nobody write a program that runs. Waits until the installed one may be written: a
; person is asked to close it, a silent run looks again for ten seconds.
!macro AwaitClosed prefix
Function ${prefix}AwaitClosed
  StrCpy $1 0
  ${Do}
    ${IfNot} ${FileExists} "${PROGRAM}"
      Return
    ${EndIf}
    ClearErrors
    FileOpen $0 "${PROGRAM}" a
    ${IfNot} ${Errors}
      FileClose $0
      Return
    ${EndIf}
    ${If} ${Silent}
      IntOp $1 $1 + 1
      ${If} $1 > 20
        SetErrorLevel 3
        Abort
      ${EndIf}
      Sleep 500
    ${Else}
      MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Tessaline is running.$\r$\n$\r$\n\
        Save your estimate and close the program, then choose Retry." IDRETRY +3
      SetErrorLevel 3
      Abort "Tessaline is running. Nothing was changed."
    ${EndIf}
  ${Loop}
FunctionEnd
!macroend
!insertmacro AwaitClosed ""
!insertmacro AwaitClosed "un."

; ---- the new files

!macro EachFile verb
  !insertmacro ${verb} "Tessaline.exe"
  !insertmacro ${verb} "Guide.html"
  !insertmacro ${verb} "THIRD-PARTY-NOTICES.txt"
  !insertmacro ${verb} "uninstall.exe"
!macroend

!macro Bring file
  Delete "$INSTDIR\${file}.new"
  Delete "$INSTDIR\${file}.old"
  ClearErrors
  Rename "$PLUGINSDIR\new\${file}" "$INSTDIR\${file}.new"
  ${If} ${Errors}
    Call TakeBack
  ${EndIf}
!macroend

!macro Swap file
  ClearErrors
  ${If} ${FileExists} "$INSTDIR\${file}"
    Rename "$INSTDIR\${file}" "$INSTDIR\${file}.old"
  ${EndIf}
  Rename "$INSTDIR\${file}.new" "$INSTDIR\${file}"
  ${If} ${Errors}
    Call TakeBack
  ${EndIf}
!macroend

!macro Restore file
  Delete "$INSTDIR\${file}.new"
  ${If} ${FileExists} "$INSTDIR\${file}.old"
    Delete "$INSTDIR\${file}"
    Rename "$INSTDIR\${file}.old" "$INSTDIR\${file}"
  ${ElseIf} $IsFirst == 1
    Delete "$INSTDIR\${file}"
  ${EndIf}
!macroend

!macro DropOld file
  Delete "$INSTDIR\${file}.old"
!macroend

Var IsFirst

; Leaves everything as it was before, says so and ends.
Function TakeBack
  SetOutPath "$TEMP"
  !insertmacro EachFile Restore
  ${If} $IsFirst == 1
    Delete "$SMPROGRAMS\Tessaline.lnk"
    Delete "$SMPROGRAMS\Tessaline Guide.lnk"
    RMDir "$INSTDIR"
    RMDir "$LOCALAPPDATA\Programs"
  ${EndIf}
  MessageBox MB_OK|MB_ICONSTOP "The files could not be written to$\r$\n$INSTDIR$\r$\n$\r$\n\
    Make room on the disk and try again. Nothing was changed." /SD IDOK
  SetErrorLevel 5
  Abort "The files could not be written. Nothing was changed."
FunctionEnd

Function .onInit
  ReadRegStr $0 HKCU "${UNINSTALL_KEY}" "ComparableVersion"
  ${VersionCompare} "$0" "${NUMBER}" $1
  ${If} $1 == 1
    ${If} ${Silent}
      SetErrorLevel 4
      Quit
    ${EndIf}
    MessageBox MB_YESNO|MB_ICONEXCLAMATION|MB_DEFBUTTON2 "Tessaline $0 is installed, which is \
      newer than ${NAME}.$\r$\n$\r$\nThe older version may be unable to read what the newer one \
      has saved. Install it all the same?" IDYES +3
    SetErrorLevel 4
    Quit
  ${EndIf}
FunctionEnd

Section
  Call AwaitClosed
  StrCpy $IsFirst 1
  ${If} ${FileExists} "${PROGRAM}"
    StrCpy $IsFirst 0
  ${EndIf}

  ; All of it is unpacked among the temporary files first, which go away by themselves.
  InitPluginsDir
  SetOutPath "$PLUGINSDIR\new"
  File "${FILES}\Tessaline.exe"
  File "${FILES}\Guide.html"
  File "${FILES}\THIRD-PARTY-NOTICES.txt"
  WriteUninstaller "$PLUGINSDIR\new\uninstall.exe"
  SetOutPath "$TEMP"

  CreateDirectory "$INSTDIR"
  !insertmacro EachFile Bring
  !insertmacro EachFile Swap
  ClearErrors
  ; Where the shortcuts, and the program after the last page, start in.
  SetOutPath "$INSTDIR"
  CreateShortcut "$SMPROGRAMS\Tessaline.lnk" "${PROGRAM}"
  CreateShortcut "$SMPROGRAMS\Tessaline Guide.lnk" "$INSTDIR\Guide.html"
  ${If} ${Errors}
    Call TakeBack
  ${EndIf}
  !insertmacro EachFile DropOld

  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Tessaline"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${NAME}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "ComparableVersion" "${NUMBER}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "${PUBLISHER}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "${PROGRAM},0"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" ${KILOBYTES}
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

; ---- the removal

!macro Remove file
  Delete "$INSTDIR\${file}"
  Delete "$INSTDIR\${file}.old"
  Delete "$INSTDIR\${file}.new"
!macroend

Section Uninstall
  Call un.AwaitClosed
  !insertmacro EachFile Remove
  Delete "$SMPROGRAMS\Tessaline.lnk"
  Delete "$SMPROGRAMS\Tessaline Guide.lnk"
  Delete "$DESKTOP\Tessaline.lnk"
  ; Not so with a folder that holds anything else.
  RMDir "$INSTDIR"
  RMDir "$LOCALAPPDATA\Programs"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  DeleteRegKey /ifempty HKCU "Software\Microsoft\Windows\CurrentVersion\Uninstall"
  DetailPrint "Your estimates are kept in ${ESTIMATES}"
SectionEnd
