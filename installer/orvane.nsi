; orvane-setup.exe: installs, repairs, upgrades and removes Orvane, for one user or for all.
; Without arguments it works for the current user and needs no rights. It is copied beside what it
; installs, as the program that Windows' list of programs starts to repair and to remove.
;
; Given by the build: VERSION, FILE_VERSION, COMMIT, OUTPUT, and files.nsh with the list of files.

Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
SetDateSave off  ; the same bytes from each build
RequestExecutionLevel user
ManifestDPIAware true
Name "Orvane"
OutFile "${OUTPUT}"
BrandingText "Orvane ${VERSION} (${COMMIT})"
ShowInstDetails nevershow

VIProductVersion "${FILE_VERSION}"
VIFileVersion "${FILE_VERSION}"
VIAddVersionKey "CompanyName" "Tarnwick"
VIAddVersionKey "FileDescription" "Orvane setup"
VIAddVersionKey "FileVersion" "${FILE_VERSION}"
VIAddVersionKey "LegalCopyright" "Copyright (c) Tarnwick"
VIAddVersionKey "OriginalFilename" "orvane-setup.exe"
VIAddVersionKey "ProductName" "Orvane"
VIAddVersionKey "ProductVersion" "${VERSION} (${COMMIT})"

!include LogicLib.nsh
!include FileFunc.nsh
!include MUI2.nsh
!include "${FILES}"

!define CLSID "{493E3910-BC83-443B-9017-F5B53DB5F5C4}"
!define SETUP "orvane-setup.exe"
!define SETTINGS "Software\Tarnwick\Orvane"
!define WINDOWS "Software\Microsoft\Windows\CurrentVersion"
!define UNINSTALL "${WINDOWS}\Uninstall\Orvane"
!define APPROVED "${WINDOWS}\Shell Extensions\Approved"
!define RUN_ONCE "${WINDOWS}\RunOnce"
!define EACH_USER "Software\Microsoft\Active Setup\Installed Components\Orvane"

; Exit codes; README.md lists them. 1 and 2 are of NSIS: cancelled; cannot unpack itself.
!define NO_RIGHTS 3
!define SETUP_IS_RUNNING 4
!define CANNOT_WRITE 5
!define CANNOT_REPLACE 6
!define CANNOT_REGISTER 7
!define CANNOT_WRITE_REGISTRY 8
!define CANNOT_MAKE_USER_FILES 9
!define CANNOT_REMOVE 10
!define NOT_INSTALLED 11
!define UNKNOWN_ARGUMENT 12

Var Arguments  ; as they were given
Var Mode       ; install, remove, user, finish
Var ForAll     ; 1 with /ALLUSERS
Var IsCopy     ; 1 in a copy of the installed setup that the installed one waits for
Var Code       ; of the failure, empty without one
Var Says       ; the failure's message, or the closing words
Var Welcome    ; what is about to be done
Var UserFolder ; menu, its document and actions of the user
Var LogFolder
Var Aside      ; folder for what is replaced or removed; empty when there is none
Var AsideLater ; the same as a command at the next sign-in finds it
Var Earlier    ; folder of the DLL that was registered before
Var Begun      ; 1 once something may have to be taken back
Var Fresh      ; 1 when nothing was installed before
Var Size       ; of all new files, in KB
Var Placing    ; 1 once new files may lie in their places
Var Registering
Var Made       ; one bit for each thing of the user that was not there before

!define MUI_ICON "${NSISDIR}/Contrib/Graphics/Icons/modern-install.ico"
!define MUI_WELCOMEPAGE_TITLE "Orvane ${VERSION}"
!define MUI_WELCOMEPAGE_TEXT "$Welcome"
!define MUI_FINISHPAGE_TITLE "Done"
!define MUI_FINISHPAGE_TEXT "$Says"
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_LANGUAGE "English"

; ---- Telling ---------------------------------------------------------------------------------------

; Writes $Says to the console: a failure, with its exit code in $Code, to the error output.
Function Print
  Push $0
  StrCpy $0 -11
  ${If} $Code != ""
    StrCpy $0 -12
  ${EndIf}
  System::Call 'kernel32::AttachConsole(i -1)'
  System::Call 'kernel32::GetStdHandle(i r0) p .r0'
  FileWrite $0 "$Says$\r$\n"
  ClearErrors
  Pop $0
FunctionEnd

Function Tell
  ${If} ${Silent}
    Call Print
  ${Else}
    MessageBox MB_OK|MB_ICONSTOP "$Says"
  ${EndIf}
FunctionEnd

; Ends the run: takes back what was done, tells why, sets the exit code.
!macro Fail code text
  StrCpy $Code ${code}
  StrCpy $Says "${text}"
  Call Undo
  Call Tell
  SetErrorLevel $Code
  Abort "$Says"
!macroend
!define Fail "!insertmacro Fail"

!macro FailIfErrors code text
  ${If} ${Errors}
    ${Fail} ${code} "${text}"
  ${EndIf}
!macroend
!define FailIfErrors "!insertmacro FailIfErrors"

; A file that could be opened but not written ends the section on its own.
Function .onInstFailed
  ${If} $Code == ""
    ${Fail} ${CANNOT_WRITE} "A file cannot be written; the disk may be full. Nothing was changed."
  ${EndIf}
FunctionEnd

; ---- What is asked for -------------------------------------------------------------------------

; Takes the first word of $R0 into $R1.
Function TakeWord
  StrCpy $R1 ""
  ${Do}
    StrCpy $R2 $R0 1
    StrCpy $R0 $R0 "" 1
    ${If} $R2 == " "
    ${OrIf} $R2 == ""
      ${ExitDo}
    ${EndIf}
    StrCpy $R1 "$R1$R2"
  ${Loop}
FunctionEnd

; Every argument is known or an error: a slip must not install something else than was meant.
Function ReadArguments
  ${GetParameters} $Arguments
  StrCpy $R0 $Arguments
  ${If} $INSTDIR != ""
    StrCpy $R0 "/D=$INSTDIR"  ; NSIS has read it already
  ${EndIf}
  ${DoWhile} $R0 != ""
    Call TakeWord
    ${If} $R1 S== "/ALLUSERS"
      StrCpy $ForAll 1
    ${ElseIf} $R1 S== "/REMOVE"
      StrCpy $Mode remove
    ${ElseIf} $R1 S== "/USER"
      StrCpy $Mode user
    ${ElseIf} $R1 S== "/COPY"
      StrCpy $IsCopy 1
    ${ElseIf} $R1 S== "/FINISH"
      StrCpy $Mode finish
    ${ElseIf} $R1 S!= "/S"
    ${AndIf} $R1 != ""
      StrCpy $INSTDIR ""
      ${Fail} ${UNKNOWN_ARGUMENT} "Unknown argument: $R1$\r$\n$\r$\n${SETUP} [/S] [/ALLUSERS] [/REMOVE]"
    ${EndIf}
  ${Loop}
FunctionEnd

Function RequireRights
  System::Alloc 68  ; SECURITY_MAX_SID_SIZE
  Pop $1
  System::Call 'advapi32::CreateWellKnownSid(i 26, p 0, p r1, *i 68)'  ; the administrators
  System::Call 'advapi32::CheckTokenMembership(p 0, p r1, *i .r0)'
  System::Free $1
  ${If} $0 <> 0
    Return
  ${EndIf}
  StrCpy $Says "Installing or removing Orvane for all users needs administrator rights."
  ${IfNot} ${Silent}
    MessageBox MB_OKCANCEL|MB_ICONQUESTION "$Says$\r$\n$\r$\nGo on as administrator?" IDCANCEL refuse
    System::Call 'shell32::ShellExecuteW(p 0, w "runas", w "$EXEPATH", w "$Arguments", p 0, i 1) p .r0'
    ${If} $0 > 32
      SetErrorLevel 0
      Quit
    ${EndIf}
    refuse:
  ${EndIf}
  ${Fail} ${NO_RIGHTS} "$Says Start it from a console of an administrator, or without /ALLUSERS for yourself alone."
FunctionEnd

; Makes the mark of a running setup; $0 is 183 (ERROR_ALREADY_EXISTS) when another one has made it.
Function MarkAsRunning
  System::Call 'kernel32::CreateMutexW(p 0, i 0, w "OrvaneSetup") p .r1 ?e'
  Pop $0
FunctionEnd

; A removal may still be finishing: that takes no time.
Function RequireToBeAlone
  ${For} $2 1 50
    Call MarkAsRunning
    ${If} $0 <> 183
      Return
    ${EndIf}
    System::Call 'kernel32::CloseHandle(p r1)'
    Sleep 100
  ${Next}
  ${Fail} ${SETUP_IS_RUNNING} "Another setup of Orvane is running. Try again when it has ended."
FunctionEnd

; Fixed places, so that whatever is run later finds what was installed.
Function SetPlaces
  StrCpy $UserFolder "$APPDATA\Orvane"
  StrCpy $LogFolder "$LOCALAPPDATA\Orvane"
  ${If} $ForAll = 1
    StrCpy $INSTDIR "$PROGRAMFILES64\Orvane"
    SetShellVarContext all
  ${Else}
    StrCpy $INSTDIR "$LOCALAPPDATA\Programs\Orvane"
  ${EndIf}
FunctionEnd

Function SetWelcome
  StrCpy $0 "for you"
  ${If} $ForAll = 1
    StrCpy $0 "for all users of this machine"
  ${EndIf}
  ${If} $Mode == remove
    StrCpy $Welcome "Orvane will be removed ($0). Menus, actions and settings stay where they are."
  ${Else}
    StrCpy $Welcome "Orvane will be installed $0, in$\r$\n$INSTDIR$\r$\n$\r$\nWhat is there already is brought up to date or repaired; a menu of your own is left as it is."
  ${EndIf}
FunctionEnd

Function .onInit
  StrCpy $Mode install
  StrCpy $ForAll 0
  StrCpy $IsCopy 0
  StrCpy $Begun 0
  StrCpy $Fresh 0
  StrCpy $Placing 0
  StrCpy $Registering 0
  StrCpy $Made 0
  Call ReadArguments
  ${If} $ForAll = 1
  ${AndIf} $Mode != user
    Call RequireRights
  ${EndIf}
  Call SetPlaces
  SetOutPath $TEMP  ; no folder that is to go is kept by being the current one
  ${If} $Mode == finish
    Call Finish
  ${ElseIf} $Mode == remove
  ${AndIf} $EXEDIR == $INSTDIR
    Call RemoveByCopy
  ${EndIf}
  ${If} $IsCopy = 0
    Call RequireToBeAlone
  ${EndIf}
  Call SetWelcome
FunctionEnd

; The program's folder, and "Programs" above it, unless something is in them.
Function RemoveFolder
  RMDir $INSTDIR
  ${GetParent} $INSTDIR $0
  RMDir $0
  ClearErrors
FunctionEnd

; ---- What is set aside -------------------------------------------------------------------------

; A file that a program has loaded can be renamed, not removed. $Aside becomes the first folder of the
; name $R0 with a number that is not there; what an earlier run left in such folders goes, if it can.
Function ChooseAside
  StrCpy $Aside ""
  ${For} $0 1 9
    RMDir /r "$R0$0"
    ${If} $Aside == ""
    ${AndIfNot} ${FileExists} "$R0$0\*.*"
      StrCpy $Aside "$R0$0"
      StrCpy $AsideLater "$R1$0"
    ${EndIf}
  ${Next}
  ClearErrors
  ${If} $Aside == ""
    ${Fail} ${CANNOT_REPLACE} "Programs still use files of nine earlier versions. Sign out and in again, then try once more."
  ${EndIf}
  CreateDirectory $Aside
  ${FailIfErrors} ${CANNOT_WRITE} "The folder $Aside cannot be made; the disk may be full or write-protected. Nothing was changed."
FunctionEnd

; Removes $Aside, now or at the next start. The command names no path of the user's making: cmd.exe
; would read more into it than a name.
Function ClearAside
  RMDir /r $Aside
  ${If} ${FileExists} "$Aside\*.*"
    ${If} $ForAll = 1
      RMDir /r /REBOOTOK $Aside
    ${Else}
      ${GetFileName} $Aside $0
      WriteRegStr HKCU "${RUN_ONCE}" "Orvane $0" '"$SYSDIR\cmd.exe" /d /c rmdir /s /q "$AsideLater"'
    ${EndIf}
  ${EndIf}
  ClearErrors
FunctionEnd

; ---- The registry ------------------------------------------------------------------------------

; The DLL registers its classes. $0 is the exit code, $R0 the DLL, $R1 "/u" to take it back.
Function RunRegsvr32
  StrCpy $1 "/n /i:user"
  ${If} $ForAll = 1
    StrCpy $1 ""
  ${EndIf}
  ClearErrors
  ExecWait '"$SYSDIR\regsvr32.exe" /s $R1 $1 "$R0"' $0
  ${If} ${Errors}
    StrCpy $0 "it cannot be started"
    ClearErrors
  ${EndIf}
FunctionEnd

!macro ForEachMenu do
  ${do} "*"
  ${do} "Directory\Background"
  ${do} "Directory"
  ${do} "Drive"
!macroend

!macro Associate class
  WriteRegStr SHCTX "Software\Classes\${class}\shellex\ContextMenuHandlers\Orvane" "" "${CLSID}"
!macroend

; Keys above that were only made for ours go as well.
!macro Dissociate class
  DeleteRegKey SHCTX "Software\Classes\${class}\shellex\ContextMenuHandlers\Orvane"
  DeleteRegKey /ifempty SHCTX "Software\Classes\${class}\shellex\ContextMenuHandlers"
  DeleteRegKey /ifempty SHCTX "Software\Classes\${class}\shellex"
  DeleteRegKey /ifempty SHCTX "Software\Classes\${class}"
!macroend

; SHCNE_ASSOCCHANGED: the shell reads the handlers again.
Function TellShell
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
FunctionEnd

Function Register
  StrCpy $Registering 1
  StrCpy $R0 "$INSTDIR\orvane.dll"
  StrCpy $R1 ""
  Call RunRegsvr32
  ${If} $0 != 0
    ${Fail} ${CANNOT_REGISTER} "orvane.dll cannot be registered (regsvr32: $0). The state before was put back."
  ${EndIf}
  ClearErrors
  !insertmacro ForEachMenu "!insertmacro Associate"
  WriteRegStr SHCTX "${APPROVED}" "${CLSID}" "Orvane Context Menu"
  Call WriteListEntry
  ${If} $ForAll = 1
    WriteRegStr HKLM "${EACH_USER}" "" "Orvane"
    WriteRegStr HKLM "${EACH_USER}" "StubPath" '"$INSTDIR\${SETUP}" /S /ALLUSERS /USER'
    WriteRegStr HKLM "${EACH_USER}" "Version" "1,0,0,0"
  ${EndIf}
  ${FailIfErrors} ${CANNOT_WRITE_REGISTRY} "The registry cannot be written. The state before was put back."
  Call TellShell
FunctionEnd

Function WriteListEntry
  StrCpy $0 ""
  ${If} $ForAll = 1
    StrCpy $0 " /ALLUSERS"
  ${EndIf}
  WriteRegStr SHCTX "${UNINSTALL}" "DisplayName" "Orvane"
  WriteRegStr SHCTX "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${UNINSTALL}" "DisplayIcon" "$INSTDIR\${SETUP}"
  WriteRegStr SHCTX "${UNINSTALL}" "Publisher" "Tarnwick"
  WriteRegStr SHCTX "${UNINSTALL}" "Comments" "Commit ${COMMIT}"
  WriteRegStr SHCTX "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${UNINSTALL}" "ModifyPath" '"$INSTDIR\${SETUP}"$0'
  WriteRegStr SHCTX "${UNINSTALL}" "UninstallString" '"$INSTDIR\${SETUP}" /REMOVE$0'
  WriteRegStr SHCTX "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\${SETUP}" /S /REMOVE$0'
  WriteRegDWORD SHCTX "${UNINSTALL}" "EstimatedSize" $Size
FunctionEnd

; $R0 is the DLL that takes its classes back; $0 says afterwards whether it could.
Function Unregister
  StrCpy $R1 "/u"
  Call RunRegsvr32
  Push $0
  !insertmacro ForEachMenu "!insertmacro Dissociate"
  DeleteRegValue SHCTX "${APPROVED}" "${CLSID}"
  ${If} $ForAll = 1
    DeleteRegKey HKLM "${EACH_USER}"
  ${EndIf}
  Call TellShell
  ClearErrors
  Pop $0
FunctionEnd

; ---- The user's own ----------------------------------------------------------------------------

!macro Starter bit name
  ${IfNot} ${FileExists} "$UserFolder\${name}"
    IntOp $Made $Made | ${bit}
    ClearErrors
    File "/oname=$UserFolder\${name}" "${STARTER}/${name}"
    ${FailIfErrors} ${CANNOT_MAKE_USER_FILES} "$UserFolder\${name} cannot be written. The state before was put back."
  ${EndIf}
!macroend

!macro UndoStarter bit name
  IntOp $0 $Made & ${bit}
  ${If} $0 <> 0
    Delete "$UserFolder\${name}"
  ${EndIf}
!macroend

; Only where there is none. A file of that name beside the DLL was in use until now, and stays it.
!macro Setting bit name folder file
  ClearErrors
  ReadRegStr $0 HKCU "${SETTINGS}" "${name}"
  ${If} ${Errors}
    StrCpy $0 "${folder}\${file}"
    ${If} ${FileExists} "$INSTDIR\${file}"
      StrCpy $0 "$INSTDIR\${file}"
    ${ElseIf} $Earlier != ""
    ${AndIf} ${FileExists} "$Earlier\${file}"
      StrCpy $0 "$Earlier\${file}"
    ${EndIf}
    IntOp $Made $Made | ${bit}
    ClearErrors
    WriteRegStr HKCU "${SETTINGS}" "${name}" $0
    ${FailIfErrors} ${CANNOT_WRITE_REGISTRY} "The settings cannot be written. The state before was put back."
  ${EndIf}
!macroend

!macro UndoSetting bit name folder file
  IntOp $0 $Made & ${bit}
  ${If} $0 <> 0
    DeleteRegValue HKCU "${SETTINGS}" "${name}"
  ${EndIf}
!macroend

!macro ForEachStarter do
  ${do} 1 "Default.cfg"
  ${do} 2 "Default.json"
  ${do} 4 "CustomActions.ini"
!macroend

!macro ForEachSetting do
  ${do} 8 "ShellConfigFile" $UserFolder "Default.cfg"
  ${do} 16 "ShellCustomActionsFile" $UserFolder "CustomActions.ini"
  ${do} 32 "DebugOutput" $LogFolder "Debug.dbg"
  ${do} 64 "TimingOutput" $LogFolder "Timing.dbg"
!macroend

!macro MakeFolder bit path
  ${IfNot} ${FileExists} "${path}\*.*"
    IntOp $Made $Made | ${bit}
    ClearErrors
    CreateDirectory "${path}"
    ${FailIfErrors} ${CANNOT_MAKE_USER_FILES} "The folder ${path} cannot be made. The state before was put back."
  ${EndIf}
!macroend

; Menu, actions and places of the logs where the user may write: Explorer writes the logs, and may not
; write where programs lie.
Function PrepareUser
  !insertmacro MakeFolder 128 $UserFolder
  !insertmacro MakeFolder 256 $LogFolder
  !insertmacro ForEachStarter "!insertmacro Starter"
  !insertmacro ForEachSetting "!insertmacro Setting"
FunctionEnd

Function UndoUser
  !insertmacro ForEachStarter "!insertmacro UndoStarter"
  !insertmacro ForEachSetting "!insertmacro UndoSetting"
  DeleteRegKey /ifempty HKCU "${SETTINGS}"
  DeleteRegKey /ifempty HKCU "Software\Tarnwick"
  IntOp $0 $Made & 128
  ${If} $0 <> 0
    RMDir $UserFolder
  ${EndIf}
  IntOp $0 $Made & 256
  ${If} $0 <> 0
    RMDir $LogFolder
  ${EndIf}
FunctionEnd

; ---- Installing --------------------------------------------------------------------------------

!macro Stage name source
  File "/oname=$INSTDIR\new\${name}" "${source}"
!macroend

!macro Place name source
  ${If} ${FileExists} "$INSTDIR\${name}"
    Rename "$INSTDIR\${name}" "$Aside\${name}"
  ${EndIf}
  ${IfNot} ${Errors}
    Rename "$INSTDIR\new\${name}" "$INSTDIR\${name}"
  ${EndIf}
  ${FailIfErrors} ${CANNOT_REPLACE} "$INSTDIR\${name} cannot be replaced. The state before was put back."
!macroend

!macro PutBack name source
  ${IfNot} ${FileExists} "$INSTDIR\new\${name}"
    Delete "$INSTDIR\${name}"
  ${EndIf}
  ${If} ${FileExists} "$Aside\${name}"
    Rename "$Aside\${name}" "$INSTDIR\${name}"
  ${EndIf}
!macroend

; All new files lie complete beside the old ones before any of those is touched.
Function StageFiles
  ClearErrors
  RMDir /r "$INSTDIR\new"
  ClearErrors
  CreateDirectory "$INSTDIR\new"
  !insertmacro ForEachFile "!insertmacro Stage"
  ${IfNot} ${Errors}
    System::Call 'kernel32::CopyFileW(w "$EXEPATH", w "$INSTDIR\new\${SETUP}", i 1) i .r0'
    ${If} $0 = 0
      SetErrors
    ${EndIf}
  ${EndIf}
  ${FailIfErrors} ${CANNOT_WRITE} "$INSTDIR cannot be written; the disk may be full or write-protected. Nothing was changed."
  ${GetSize} "$INSTDIR\new" "/S=0K" $Size $0 $1
FunctionEnd

Function PlaceFiles
  StrCpy $R0 "$INSTDIR\old"
  StrCpy $R1 "%LOCALAPPDATA%\Programs\Orvane\old"
  Call ChooseAside
  StrCpy $Placing 1
  ClearErrors
  !insertmacro ForEachFile "!insertmacro Place"
  ${If} $EXEDIR != $INSTDIR  ; the installed setup repairs all but itself
    !insertmacro Place "${SETUP}" ""
  ${EndIf}
  RMDir /r "$INSTDIR\new"
FunctionEnd

Function FindEarlier
  StrCpy $Earlier ""
  ReadRegStr $0 SHCTX "Software\Classes\CLSID\${CLSID}\InprocServer32" ""
  ${If} $0 != ""
    ${GetParent} $0 $Earlier
  ${EndIf}
  ${IfNot} ${FileExists} "$INSTDIR\orvane.dll"
    StrCpy $Fresh 1
  ${EndIf}
  ClearErrors
FunctionEnd

!ifdef HAVE_DESIGNER
Function AddToStartMenu
  ClearErrors
  CreateShortcut "$SMPROGRAMS\Orvane Designer.lnk" "$INSTDIR\designer.exe"
  ${FailIfErrors} ${CANNOT_WRITE} "The entry of the Start menu cannot be written. The state before was put back."
FunctionEnd
!endif

Function Install
  Call FindEarlier
  StrCpy $Begun 1
  Call StageFiles
  Call PlaceFiles
  Call Register
  !ifdef HAVE_DESIGNER
    Call AddToStartMenu
  !endif
  Call PrepareUser
  Call ClearAside
  StrCpy $Says "Orvane ${VERSION} is installed in $INSTDIR.$\r$\n$\r$\nYour menu, its document and your actions are in $UserFolder, the logs, when switched on, in $LogFolder."
FunctionEnd

; Takes back all that this run did.
Function Undo
  ${If} $Made <> 0
    Call UndoUser
  ${EndIf}
  ${If} $Begun = 0
    Return
  ${EndIf}
  ${If} $Registering = 1
  ${AndIf} $Fresh = 1
    StrCpy $R0 "$INSTDIR\orvane.dll"
    Call Unregister
    DeleteRegKey SHCTX "${UNINSTALL}"
    Delete "$SMPROGRAMS\Orvane Designer.lnk"
  ${EndIf}
  ${If} $Placing = 1
    !insertmacro ForEachFile "!insertmacro PutBack"
    ${If} $EXEDIR != $INSTDIR
      !insertmacro PutBack "${SETUP}" ""
    ${EndIf}
  ${EndIf}
  RMDir /r "$INSTDIR\new"
  ${If} $Aside != ""
    RMDir /r $Aside
  ${EndIf}
  Call RemoveFolder
FunctionEnd

; ---- Removing ----------------------------------------------------------------------------------

!macro Remove name source
  Delete "$INSTDIR\${name}"
  ${If} ${FileExists} "$INSTDIR\${name}"
    ClearErrors
    Rename "$INSTDIR\${name}" "$Aside\${name}"
    ${FailIfErrors} ${CANNOT_REMOVE} "$INSTDIR\${name} cannot be removed: a program uses it, or it is write-protected. The menu is gone already; close the program and remove Orvane once more."
  ${EndIf}
!macroend

; On another disk than the temporary folder a file in use can only be renamed where it is.
Function ChooseAsideForRemoval
  StrCpy $R0 "$TEMP\Orvane-old"
  StrCpy $R1 "%TEMP%\Orvane-old"
  StrCpy $0 $TEMP 2
  StrCpy $1 $INSTDIR 2
  ${If} $0 != $1
    StrCpy $R0 "$INSTDIR\old"
    StrCpy $R1 "%LOCALAPPDATA%\Programs\Orvane\old"
  ${EndIf}
  Call ChooseAside
FunctionEnd

Function RemoveAll
  ReadRegStr $0 SHCTX "${UNINSTALL}" "UninstallString"
  ${If} $0 == ""
  ${AndIfNot} ${FileExists} "$INSTDIR\orvane.dll"
    ${Fail} ${NOT_INSTALLED} "Orvane is not installed in $INSTDIR; there is nothing to remove."
  ${EndIf}
  ; Of the DLL that this program brings along: the installed one may be damaged or gone.
  InitPluginsDir
  !insertmacro StageLibrary "$PLUGINSDIR\orvane.dll"
  StrCpy $R0 "$PLUGINSDIR\orvane.dll"
  Call Unregister
  ${If} $0 != 0
    ${Fail} ${CANNOT_REGISTER} "The classes cannot be taken out of the registry (regsvr32: $0). Nothing else was changed."
  ${EndIf}
  Call ChooseAsideForRemoval
  Delete "$SMPROGRAMS\Orvane Designer.lnk"
  !insertmacro ForEachFile "!insertmacro Remove"
  DeleteRegKey SHCTX "${UNINSTALL}"
  ${If} $IsCopy = 0
    !insertmacro Remove "${SETUP}" ""
  ${EndIf}
  Call ClearAside
  RMDir /r "$INSTDIR\new"
  ${For} $0 1 9
    RMDir /r "$INSTDIR\old$0"
  ${Next}
  Call RemoveFolder
  StrCpy $Says "Orvane is removed. Your menu and actions stay in $UserFolder, your settings in HKEY_CURRENT_USER\${SETTINGS}, logs in $LogFolder."
FunctionEnd

; A running setup cannot remove its own file: a copy does the work, while this one waits and passes on
; its exit code. What is left then, the file of this one, the copy removes when this one has ended.
Function RemoveByCopy
  Call RequireToBeAlone
  Call ChooseAsideForRemoval
  System::Call 'kernel32::CopyFileW(w "$EXEPATH", w "$Aside\${SETUP}", i 0) i .r0'
  ${If} $0 = 0
    ${Fail} ${CANNOT_WRITE} "$Aside cannot be written; the disk may be full. Nothing was changed."
  ${EndIf}
  ClearErrors
  ExecWait '"$Aside\${SETUP}" $Arguments /COPY' $0
  ${FailIfErrors} ${CANNOT_WRITE} "$Aside\${SETUP} cannot be started. Nothing was changed."
  ${If} $0 = 0
    StrCpy $1 ""
    ${If} $ForAll = 1
      StrCpy $1 "/ALLUSERS"
    ${EndIf}
    Exec '"$Aside\${SETUP}" /S /FINISH $1'
  ${EndIf}
  SetErrorLevel $0
  Quit
FunctionEnd

; The copy's second task. It cannot remove itself either, which the next start does.
Function Finish
  Call MarkAsRunning
  ${For} $0 1 100
    Delete "$INSTDIR\${SETUP}"
    ${IfNot} ${FileExists} "$INSTDIR\${SETUP}"
      ${ExitFor}
    ${EndIf}
    Sleep 100
  ${Next}
  Call RemoveFolder
  StrCpy $Aside $EXEDIR
  ${GetFileName} $EXEDIR $0
  ${GetParent} $EXEDIR $1
  StrCpy $AsideLater "%TEMP%\$0"
  ${If} $1 == $INSTDIR
    StrCpy $AsideLater "%LOCALAPPDATA%\Programs\Orvane\$0"
  ${EndIf}
  Call ClearAside
  SetErrorLevel 0
  Quit
FunctionEnd

Section
  SetOverwrite try
  SetDetailsPrint none
  ${If} $Mode == remove
    Call RemoveAll
  ${ElseIf} $Mode == user
    Call FindEarlier
    Call PrepareUser
  ${Else}
    Call Install
  ${EndIf}
  ${If} ${Silent}
  ${AndIf} $Says != ""
    Call Print
  ${EndIf}
  SetErrorLevel 0
SectionEnd
