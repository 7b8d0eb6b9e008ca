; The installer. ./package runs this script and tells it by -D: VERSION ("1.0"), VERSION_QUAD ("1.0.0.0"), COPYRIGHT,
; SIZE (of what is installed, in kilobytes), LISTS (the folder of install.nsh and uninstall.nsh, which name each file),
; PICTURES (the folder of Shell.ico and Wizard.bmp) and OUTPUT.
;
; It is to start wherever the program does, so it is made of the ANSI stub, which Windows 95 loads.
Unicode false
SetCompressor /SOLID lzma
RequestExecutionLevel admin
ManifestDPIAware true
ManifestSupportedOS all

!include MUI2.nsh
!include LogicLib.nsh
!include Sections.nsh

!define PRODUCT Velkarix
!define PROGRAM $INSTDIR\Velkarix.exe
!define UNINSTALL_KEY Software\Microsoft\Windows\CurrentVersion\Uninstall\Velkarix
!define HOLDING_KEY Software\Velkarix
!define MENU_FOLDER $SMPROGRAMS\Velkarix
!define FAILED 2 ; the exit code of an installation that didn't take place

Name "${PRODUCT}"
OutFile "${OUTPUT}"
BrandingText "${PRODUCT} ${VERSION}"
InstallDir $PROGRAMFILES\Velkarix
; A newer version goes where the older one is.
InstallDirRegKey HKLM "${UNINSTALL_KEY}" InstallLocation

VIProductVersion ${VERSION_QUAD}
VIAddVersionKey ProductName "${PRODUCT}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileDescription "${PRODUCT} Setup"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey CompanyName "${PRODUCT}"
VIAddVersionKey LegalCopyright "${COPYRIGHT}"

!define MUI_ICON "${PICTURES}/Shell.ico"
!define MUI_UNICON "${PICTURES}/Shell.ico"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${PICTURES}/Wizard.bmp"
!define MUI_ABORTWARNING
!define MUI_COMPONENTSPAGE_SMALLDESC
!define MUI_FINISHPAGE_NOAUTOCLOSE
!define MUI_UNFINISHPAGE_NOAUTOCLOSE
!define MUI_FINISHPAGE_RUN "${PROGRAM}"
!define MUI_FINISHPAGE_RUN_TEXT "Start Velkarix"

!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_COMPONENTS
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

; Ends the set-up with that message; what is silent says nothing, and its exit code tells.
!macro Refuse MESSAGE
    MessageBox MB_OK|MB_ICONSTOP "${MESSAGE}" /SD IDOK
    SetErrorLevel ${FAILED}
    Quit
!macroend

; Waits until the program can be written over: the system refuses that while it runs.
!macro WaitForProgramToEnd
    ${If} ${FileExists} "${PROGRAM}"
        SetFileAttributes "${PROGRAM}" NORMAL
        ${Do}
            ClearErrors
            FileOpen $0 "${PROGRAM}" a
            ${IfNot} ${Errors}
                FileClose $0
                ${Break}
            ${EndIf}
            MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
                "Velkarix is running, or its file can't be written.$\r$\n$\r$\nClose it, and try again." \
                /SD IDCANCEL IDRETRY +3
            SetErrorLevel ${FAILED}
            Quit
        ${Loop}
    ${EndIf}
!macroend

; --- Installing --------------------------------------------------------------------------------------------

Section "Velkarix (required)" SectionProgram
    SectionIn RO
    SetShellVarContext all
    !insertmacro WaitForProgramToEnd
    ClearErrors
    WriteRegStr HKLM "${UNINSTALL_KEY}" DisplayName "${PRODUCT}"
    ${If} ${Errors}
        !insertmacro Refuse "You need the rights of an administrator to install Velkarix."
    ${EndIf}
    ; These are all the files that are written: what else is in the folder is the user's.
    !include "${LISTS}/install.nsh"
    SetOutPath $INSTDIR
    WriteUninstaller $INSTDIR\Uninstall.exe
    WriteRegStr HKLM "${UNINSTALL_KEY}" DisplayVersion "${VERSION}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" Publisher "${PRODUCT}"
    ; With an index, a comma in the path can't be taken for one.
    WriteRegStr HKLM "${UNINSTALL_KEY}" DisplayIcon "${PROGRAM},0"
    WriteRegStr HKLM "${UNINSTALL_KEY}" InstallLocation $INSTDIR
    WriteRegStr HKLM "${UNINSTALL_KEY}" UninstallString '"$INSTDIR\Uninstall.exe"'
    WriteRegStr HKLM "${UNINSTALL_KEY}" QuietUninstallString '"$INSTDIR\Uninstall.exe" /S'
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" EstimatedSize ${SIZE}
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" NoModify 1
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" NoRepair 1
SectionEnd

Section "Start menu" SectionMenu
    SetShellVarContext all
    CreateDirectory "${MENU_FOLDER}"
    CreateShortCut "${MENU_FOLDER}\Velkarix.lnk" "${PROGRAM}"
    CreateShortCut "${MENU_FOLDER}\Velkarix Help.lnk" $INSTDIR\Help\index.html
SectionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
    !insertmacro MUI_DESCRIPTION_TEXT ${SectionProgram} "The program and its help. Settings, lists and backups that \
        are there already stay as they are."
    !insertmacro MUI_DESCRIPTION_TEXT ${SectionMenu} "Velkarix and its help in the start menu."
!insertmacro MUI_FUNCTION_DESCRIPTION_END

Function .onInit
    SetShellVarContext all
    ; Who did without the entries in the start menu the last time doesn't get them now.
    ReadRegStr $0 HKLM "${UNINSTALL_KEY}" InstallLocation
    ${If} $0 != ""
    ${AndIfNot} ${FileExists} "${MENU_FOLDER}\*.*"
        !insertmacro UnselectSection ${SectionMenu}
    ${EndIf}
FunctionEnd

; --- Uninstalling ------------------------------------------------------------------------------------------

; Counts in $R9 the lists of switched-off items that hold something under that root.
!macro CountHeldItems ROOT
    StrCpy $0 0
    ${Do}
        EnumRegKey $1 ${ROOT} "${HOLDING_KEY}\Disabled" $0
        ${If} $1 == ""
            ${Break}
        ${EndIf}
        EnumRegKey $2 ${ROOT} "${HOLDING_KEY}\Disabled\$1" 0
        ClearErrors
        EnumRegValue $3 ${ROOT} "${HOLDING_KEY}\Disabled\$1" 0
        ${If} $2 != ""
        ${OrIfNot} ${Errors}
            IntOp $R9 $R9 + 1
        ${EndIf}
        IntOp $0 $0 + 1
    ${Loop}
!macroend

; Adds to $R9 the files of a folder of switched-off shortcuts.
!macro CountHeldFiles FOLDER
    FindFirst $0 $1 "$INSTDIR\${FOLDER}\*.*"
    ${DoWhile} $1 != ""
        ${If} $1 != "."
        ${AndIf} $1 != ".."
            IntOp $R9 $R9 + 1
        ${EndIf}
        FindNext $0 $1
    ${Loop}
    FindClose $0
!macroend

; Takes away the keys of switched-off items that hold nothing any more.
!macro RemoveEmptyHoldingKeys ROOT
    StrCpy $0 0
    ${Do}
        EnumRegKey $1 ${ROOT} "${HOLDING_KEY}\Disabled" $0
        ${If} $1 == ""
            ${Break}
        ${EndIf}
        ClearErrors
        DeleteRegKey /ifempty ${ROOT} "${HOLDING_KEY}\Disabled\$1"
        EnumRegKey $2 ${ROOT} "${HOLDING_KEY}\Disabled" $0
        ${If} $2 == $1
            IntOp $0 $0 + 1
        ${EndIf}
    ${Loop}
    DeleteRegKey /ifempty ${ROOT} "${HOLDING_KEY}\Disabled"
    DeleteRegKey /ifempty ${ROOT} "${HOLDING_KEY}"
!macroend

Function un.onInit
    ; The folder comes with a backslash at its end, and without one it was declared.
    StrLen $0 $INSTDIR
    StrCpy $1 $INSTDIR "" -1
    ${If} $0 > 3
    ${AndIf} $1 == "\"
        StrCpy $INSTDIR $INSTDIR -1
    ${EndIf}
    StrCpy $R9 0
    !insertmacro CountHeldItems HKLM
    !insertmacro CountHeldItems HKCU
    !insertmacro CountHeldItems HKCR
    !insertmacro CountHeldFiles DLMStartup
    !insertmacro CountHeldFiles DCUStartup
    ${If} $R9 > 0
        MessageBox MB_OKCANCEL|MB_ICONEXCLAMATION|MB_DEFBUTTON2 \
            "Some items are still switched off. They stay where Velkarix keeps them, and stay switched off: without it they can be brought back by hand only.$\r$\n$\r$\nTo switch on again what you still want, cancel, and start Velkarix. Uninstall it nevertheless?" \
            /SD IDOK IDOK +2
        Abort
    ${EndIf}
FunctionEnd

Section "un.Velkarix (required)" SectionUnProgram
    SectionIn RO
    SetShellVarContext all
    !insertmacro WaitForProgramToEnd
    !include "${LISTS}/uninstall.nsh"
    Delete $INSTDIR\Uninstall.exe
    ; Entries that speak of another copy in another folder are that one's.
    ReadRegStr $0 HKLM "${UNINSTALL_KEY}" InstallLocation
    ${If} $0 == $INSTDIR
        Delete "${MENU_FOLDER}\Velkarix.lnk"
        Delete "${MENU_FOLDER}\Velkarix Help.lnk"
        RMDir "${MENU_FOLDER}"
        DeleteRegKey HKLM "${UNINSTALL_KEY}"
    ${EndIf}
    !insertmacro RemoveEmptyHoldingKeys HKLM
    !insertmacro RemoveEmptyHoldingKeys HKCU
    !insertmacro RemoveEmptyHoldingKeys HKCR
    RMDir $INSTDIR\DLMStartup
    RMDir $INSTDIR\DCUStartup
SectionEnd

Section /o "un.Settings and lists" SectionUnSettings
    Delete $INSTDIR\Settings.ini
    Delete $INSTDIR\SafeProcess.vkl
    ; What a write that broke off has left beside it, which the program would take for the newer one.
    Delete $INSTDIR\SafeProcess.vkl.new
    Delete $INSTDIR\SystemProcess.vkl
    Delete $INSTDIR\SusProcess.vkl
    Delete $INSTDIR\SusCLSID.vkl
    Delete $INSTDIR\SusInstall.vkl
    Delete $INSTDIR\MalActivex.scl
    Delete $INSTDIR\database.ini
    Delete $INSTDIR\version.ini
SectionEnd

; Whether a file in the backup folder was put there by the program: its name begins with the moment that it was kept
; at, in six numbers, and ends as that of a copy or a record, or goes on with an underline and a name.
; In: the name in $1. Out: $2, 1 if so, else 0.
Function un.IsBackup
    StrCpy $2 0
    StrCpy $3 0 ; where in the name
    ${For} $4 1 6
        StrCpy $5 0 ; digits of that number
        ${Do}
            StrCpy $6 $1 1 $3
            IntOp $7 $6 + 0
            ${If} $6 != $7 ; no digit
                ${Break}
            ${EndIf}
            IntOp $5 $5 + 1
            IntOp $3 $3 + 1
        ${Loop}
        ${If} $5 == 0
            Return
        ${EndIf}
        ${If} $4 < 6
            ${If} $6 != "_"
                Return
            ${EndIf}
            IntOp $3 $3 + 1
        ${EndIf}
    ${Next}
    StrCpy $6 $1 "" $3
    StrCpy $7 $6 1
    ${If} $6 == ".bup"
    ${OrIf} $6 == ".prc"
    ${OrIf} $7 == "_"
        StrCpy $2 1
    ${EndIf}
FunctionEnd

Function un.DeleteBackups
    FindFirst $0 $1 $INSTDIR\backup\*.*
    ${DoWhile} $1 != ""
        Call un.IsBackup
        ${If} $2 = 1
            Delete $INSTDIR\backup\$1
        ${EndIf}
        FindNext $0 $1
    ${Loop}
    FindClose $0
FunctionEnd

Section /o "un.Backups" SectionUnBackups
    ${If} ${FileExists} $INSTDIR\backup\*.*
        MessageBox MB_YESNO|MB_ICONEXCLAMATION|MB_DEFBUTTON2 \
            "Remove the backups, too? They are the only copies of what was deleted with Velkarix, and can't be brought back." \
            /SD IDNO IDNO kept
        Call un.DeleteBackups
        kept:
    ${EndIf}
SectionEnd

Section -un.Folders
    ; Each goes only when nothing is left in it.
    SetOutPath $TEMP
    RMDir $INSTDIR\backup
    RMDir $INSTDIR
SectionEnd

!insertmacro MUI_UNFUNCTION_DESCRIPTION_BEGIN
    !insertmacro MUI_DESCRIPTION_TEXT ${SectionUnProgram} "The program, its help, and its entries in the start menu."
    !insertmacro MUI_DESCRIPTION_TEXT ${SectionUnSettings} "Your settings, your safe list and the definition lists."
    !insertmacro MUI_DESCRIPTION_TEXT ${SectionUnBackups} "The copies of what was deleted with Velkarix. Without this \
        they stay in the folder."
!insertmacro MUI_UNFUNCTION_DESCRIPTION_END
