; The installer: per user or, where the user may, for all who use the computer. makensis is given
;   VERSION        as it is shown
;   VERSION_PARTS  four numbers with dots between
;   STAGE          the folder of all that is installed
;   FILES          a file that names all that lies in STAGE: lines of
;                  !insertmacro TakeFile FOLDER NAME and !insertmacro TakeFolder FOLDER, folders before what lies in them
;   INSTALLER      where the installer goes
; Silent: /S, with /CurrentUser or /AllUsers, /Components for the components and, as the last word, /D=FOLDER. It ends with 0
; where all was done, with 2 where nothing was changed because the program is in use or a file could not be written.
; The application finds its components beside itself. For other programs they are registered only where somebody asks for it:
; a class has one place in the system, for all users or for one, which another installation may hold.
; Shops, settings and reports of failures lie with each user and are never touched.
Unicode true
Target amd64-unicode
ManifestDPIAware true
SetCompressor /SOLID lzma
SetDateSave off

!define NAME "Kovaris"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NAME}"
!define PROGRAM_KEY "Software\Microsoft\Windows\CurrentVersion\App Paths\kovaris.exe"

!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_INSTDIR "${NAME}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "Software\${NAME}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME "Folder"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "Software\${NAME}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME "Folder"
!define MULTIUSER_USE_PROGRAMFILES64
!include MultiUser.nsh
!include MUI2.nsh
!include FileFunc.nsh
!include x64.nsh
!include Sections.nsh

Name "${NAME}"
OutFile "${INSTALLER}"
BrandingText "${NAME} ${VERSION}"
VIProductVersion "${VERSION_PARTS}"
VIFileVersion "${VERSION_PARTS}"
VIAddVersionKey /LANG=1046 "ProductName" "${NAME}"
VIAddVersionKey /LANG=1046 "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=1046 "FileDescription" "Instalação da agenda Kovaris"
VIAddVersionKey /LANG=1046 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=1046 "LegalCopyright" "Kovaris contributors"

!define MUI_ICON "${STAGE}\kovaris.ico"
!define MUI_UNICON "${STAGE}\kovaris.ico"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\kovaris.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Abrir a agenda"
!insertmacro MUI_PAGE_LICENSE "${STAGE}\licencas\kovaris.txt"
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "PortugueseBR"

; A file that a program holds open cannot be written: nothing is changed before each can.
; A macro, since what is installed and what is removed have procedures of their own.
!macro RequireWritable name
    retry_${name}:
    ${If} ${FileExists} "$INSTDIR\${name}"
        ClearErrors
        FileOpen $0 "$INSTDIR\${name}" a
        ${If} ${Errors}
            MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
                "A agenda está aberta, ou outro programa usa ${name}. Feche-os e tente de novo.$\n$\nNada foi alterado." \
                /SD IDCANCEL IDRETRY retry_${name}
            SetErrorLevel 2
            Quit
        ${EndIf}
        FileClose $0
    ${EndIf}
!macroend

!macro RequireAllWritable
    !insertmacro RequireWritable kovaris.exe
    !insertmacro RequireWritable agenda-data.exe
    !insertmacro RequireWritable agenda-scenario.exe
    !insertmacro RequireWritable KOVA_A_Agenda.dll
    !insertmacro RequireWritable KOVA_N_Familia.dll
    !insertmacro RequireWritable KOVA_A_Familia.dll
    !insertmacro RequireWritable kovaris-platform.dll
    !insertmacro RequireWritable Qt6Core.dll
!macroend

; What an installed version left is taken away by the list that it brought along, so that no file of it stays behind.
!macro RemoveFormer
    ${If} ${FileExists} "$INSTDIR\Desinstalar.exe"
        ExecWait '"$INSTDIR\Desinstalar.exe" /S /Update /$MultiUser.InstallMode _?=$INSTDIR' $0
        ${If} $0 <> 0
            MessageBox MB_OK|MB_ICONSTOP \
                "A versão anterior não pôde ser retirada. Feche os programas que a usam e instale de novo." /SD IDOK
            SetErrorLevel 2
            Quit
        ${EndIf}
    ${EndIf}
!macroend

Var Components
Var NamedFolder

Function .onInit
    ${IfNot} ${RunningX64}
        MessageBox MB_OK|MB_ICONSTOP "Este programa precisa de um Windows de 64 bits." /SD IDOK
        SetErrorLevel 2
        Quit
    ${EndIf}
    SetRegView 64
    ; What chooses between all and one names the folder anew.
    StrCpy $NamedFolder $INSTDIR
    !insertmacro MULTIUSER_INIT
    ${If} $NamedFolder != ""
        StrCpy $INSTDIR $NamedFolder
    ${EndIf}
    Call ChooseComponents
FunctionEnd

Function un.onInit
    SetRegView 64
    !insertmacro MULTIUSER_UNINIT
FunctionEnd

!macro TakeFolder folder
    SetOutPath "$INSTDIR\${folder}"
!macroend
!macro TakeFile folder name
    SetOutPath "$INSTDIR\${folder}"
    File "${STAGE}\${folder}\${name}"
!macroend

; The system's own program for it, in a process of its own: what a library does there ends with it. What is installed for one
; user is registered for that one alone, also by whoever may write for all.
!macro WithComponents how
    StrCpy $1 ""
    ${If} $MultiUser.InstallMode == "CurrentUser"
        StrCpy $1 "/n /i:user"
    ${EndIf}
    ExecWait '"$SYSDIR\regsvr32.exe" /s ${how} $1 "$INSTDIR\KOVA_A_Agenda.dll"'
    ExecWait '"$SYSDIR\regsvr32.exe" /s ${how} $1 "$INSTDIR\KOVA_N_Familia.dll"'
    ExecWait '"$SYSDIR\regsvr32.exe" /s ${how} $1 "$INSTDIR\KOVA_A_Familia.dll"'
!macroend

Section "Agenda" SectionAgenda
    SectionIn RO
    !insertmacro RequireAllWritable
    !insertmacro RemoveFormer
    SetOverwrite on
    ClearErrors
    !include "${FILES}"
    SetOutPath "$INSTDIR"
    ${If} ${Errors}
        MessageBox MB_OK|MB_ICONSTOP \
            "A instalação não terminou: um arquivo não pôde ser gravado em $INSTDIR. Veja se há espaço no disco e instale de novo." \
            /SD IDOK
        SetErrorLevel 2
        Quit
    ${EndIf}
    WriteUninstaller "$INSTDIR\Desinstalar.exe"

    CreateShortcut "$SMPROGRAMS\${NAME}.lnk" "$INSTDIR\kovaris.exe" "" "$INSTDIR\kovaris.exe" 0
    WriteRegStr SHCTX "Software\${NAME}" "Folder" "$INSTDIR"
    WriteRegStr SHCTX "${PROGRAM_KEY}" "" "$INSTDIR\kovaris.exe"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayName" "${NAME}"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\kovaris.exe,0"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "Publisher" "Kovaris contributors"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\Desinstalar.exe" /$MultiUser.InstallMode'
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\Desinstalar.exe" /$MultiUser.InstallMode /S'
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoRepair" 1
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    IntFmt $0 "0x%08X" $0
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "EstimatedSize" "$0"
SectionEnd

Section "Atalho na área de trabalho" SectionDesktop
    CreateShortcut "$DESKTOP\${NAME}.lnk" "$INSTDIR\kovaris.exe" "" "$INSTDIR\kovaris.exe" 0
SectionEnd

Section "Atalho para a demonstração" SectionDemonstration
    CreateShortcut "$SMPROGRAMS\${NAME} (demonstração).lnk" "$INSTDIR\kovaris.exe" "--demo" "$INSTDIR\kovaris.exe" 0
SectionEnd

Section /o "Componentes para outros programas" SectionComponents
    !insertmacro WithComponents ""
    WriteRegDWORD SHCTX "Software\${NAME}" "Components" 1
SectionEnd

; They are asked for by /Components, or were when the former version was installed.
Function ChooseComponents
    ReadRegDWORD $Components SHCTX "Software\${NAME}" "Components"
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/Components" $1
    ${IfNot} ${Errors}
        StrCpy $Components 1
    ${EndIf}
    ${If} $Components = 1
        !insertmacro SelectSection ${SectionComponents}
    ${EndIf}
FunctionEnd

LangString DESC_Agenda 1046 "O programa, os dados de exemplo, as ferramentas e o guia."
LangString DESC_Desktop 1046 "Um ícone na área de trabalho que abre a agenda."
LangString DESC_Demonstration 1046 "Uma entrada do menu que abre uma loja inventada, para experimentar."
LangString DESC_Components 1046 "Só para quem abre a agenda de dentro de outro programa. A agenda mesma não precisa."
!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
    !insertmacro MUI_DESCRIPTION_TEXT ${SectionAgenda} $(DESC_Agenda)
    !insertmacro MUI_DESCRIPTION_TEXT ${SectionDesktop} $(DESC_Desktop)
    !insertmacro MUI_DESCRIPTION_TEXT ${SectionDemonstration} $(DESC_Demonstration)
    !insertmacro MUI_DESCRIPTION_TEXT ${SectionComponents} $(DESC_Components)
!insertmacro MUI_FUNCTION_DESCRIPTION_END

; What was installed goes, and folders that are empty behind it: whatever somebody else put there stays.
!macro DropFile folder name
    Delete "$INSTDIR\${folder}\${name}"
!macroend
!macro DropFolder folder
    RMDir "$INSTDIR\${folder}"
!macroend

; Registered by whomever, if these are meant.
!macro ForgetComponents
    ReadRegStr $0 HKCR "KOVA_A_Agenda.clsAgenda\CLSID" ""
    ReadRegStr $0 HKCR "CLSID\$0\InprocServer32" ""
    ${If} $0 == "$INSTDIR\KOVA_A_Agenda.dll"
        !insertmacro WithComponents "/u"
    ${EndIf}
!macroend

Section "Uninstall"
    !insertmacro RequireAllWritable
    !insertmacro ForgetComponents
    !include "${FILES}.removal"
    Delete "$INSTDIR\Desinstalar.exe"
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/Update" $1
    ${IfNot} ${Errors}
        Return
    ${EndIf}
    SetOutPath "$TEMP"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\${NAME}.lnk"
    Delete "$SMPROGRAMS\${NAME} (demonstração).lnk"
    Delete "$DESKTOP\${NAME}.lnk"
    DeleteRegKey SHCTX "${UNINSTALL_KEY}"
    DeleteRegKey SHCTX "${PROGRAM_KEY}"
    DeleteRegKey SHCTX "Software\${NAME}"
SectionEnd
