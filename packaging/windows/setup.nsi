; The installer for Windows: for one user, without administrator rights. make-setup, beside this file, calls
; the compiler and defines VERSION, PROGRAM (folder of the packed program), DEMO and EMPTY (folders with seven
; tables each), ICON, SIDE (picture beside the first and the last page) and OUTPUT.
;
; On the command line:
;   /S            installs without a window; writes to the data folder only with /DATA=
;   /DATA=demo    installs the demo catalogue with /S; otherwise preselects it
;   /DATA=empty   chooses seven tables with header lines only
;   /D=FOLDER     installs elsewhere; an installed program moves there. Must be last and unquoted
; Exit codes: 0 installed, 1 cancelled by the user, 2 not installed, 3 installed without its catalogue.
;
; The data folder belongs to the user: tables are written only if none of the seven and no interrupted save is
; there; no file there is ever replaced; the uninstaller does not touch it.

Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true
ManifestSupportedOS all

!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh

!define PRODUCT "Varlostudiji"
!define CHECK "Provjera kataloga"
!define PUBLISHER "Varlostudiji tim"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${PRODUCT}"

Name "${PRODUCT}"
OutFile "${OUTPUT}"
BrandingText "${PRODUCT} ${VERSION}"

Var FormerFolder   ; where the program is installed already, or nothing
Var DataFolder
Var CatalogueFound ; 1 when at least one of the seven tables is in the data folder, or a complete set of them
Var Data           ; what to put there: demo, empty, or nothing
Var DemoButton
Var EmptyButton
Var NothingButton

; --- Pages ---

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${SIDE}"
!define MUI_ABORTWARNING

!define MUI_WELCOMEPAGE_TITLE "$(Welcome)"
!define MUI_WELCOMEPAGE_TEXT "$(WelcomeText)"
!insertmacro MUI_PAGE_WELCOME
Page custom ShowDataPage LeaveDataPage
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_RUN "$INSTDIR\varlostudiji.exe"
!define MUI_FINISHPAGE_RUN_TEXT "$(RunProgram)"
!define MUI_PAGE_CUSTOMFUNCTION_SHOW ShowFinishPage
!insertmacro MUI_PAGE_FINISH

!define MUI_UNCONFIRMPAGE_TEXT_TOP "$(UninstallText)"
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES

; --- Texts ---

!insertmacro MUI_LANGUAGE "Croatian"
!define TEXT "!insertmacro Text"
!macro Text name text
    LangString ${name} ${LANG_CROATIAN} "${text}"
!macroend

${TEXT} Welcome "Varlostudiji ${VERSION}"
${TEXT} WelcomeText "Katalog kolegija i nastavno opterećenje.$\r$\n$\r$\nProgram se instalira samo za vas; administratorska prava nisu potrebna. Prije nastavka zatvorite program Varlostudiji ako je otvoren.$\r$\n$\r$\n$_CLICK"
${TEXT} DataTitle "Katalog"
${TEXT} DataSubtitle "Što staviti u mapu s podacima?"
${TEXT} DataText "U mapi s podacima još nema kataloga, a bez njega se program ne može pokrenuti:"
${TEXT} DataDemo "&Ogledni katalog: za upoznavanje s programom, sva su imena izmišljena"
${TEXT} DataEmpty "Sedam &praznih datoteka: samo zaglavlja, za vlastiti katalog"
${TEXT} DataNothing "N&išta: datoteke kataloga stavit ću u mapu naknadno"
${TEXT} DataPromise "Postojeće se datoteke u toj mapi nikad ne mijenjaju."
${TEXT} RunProgram "&Pokreni Varlostudiji"
${TEXT} UninstallText "Uklanja se samo program. Katalog u mapi s podacima ostaje netaknut."
${TEXT} WrongData "Uz /DATA= može stajati samo demo ili empty."
${TEXT} ProgramFailed "Program nije instaliran. Zatvorite program Varlostudiji ako je otvoren i pokušajte ponovno."
${TEXT} DataFailed "Katalog nije moguće zapisati u mapu $DataFolder."
${TEXT} ProgramOpen "Program Varlostudiji je otvoren. Zatvorite ga i pokušajte ponovno."

; The installer's properties in Explorer.
!getdllversion "${PROGRAM}\varlostudiji.exe" PROGRAM_
!define FILE_VERSION "${PROGRAM_1}.${PROGRAM_2}.${PROGRAM_3}.${PROGRAM_4}"
VIProductVersion "${FILE_VERSION}"
VIFileVersion "${FILE_VERSION}"
!define INFO "VIAddVersionKey /LANG=${LANG_CROATIAN}"
${INFO} "ProductName" "${PRODUCT}"
${INFO} "ProductVersion" "${VERSION}"
${INFO} "FileVersion" "${VERSION}"
${INFO} "FileDescription" "${PRODUCT} – instalacija"
${INFO} "CompanyName" "${PUBLISHER}"
${INFO} "LegalCopyright" "© 2026 ${PUBLISHER}"

; --- The data folder ---

!macro ForEachTable action
    !insertmacro ${action} "db_zavod.csv"
    !insertmacro ${action} "db_nastavnici.csv"
    !insertmacro ${action} "db_studij.csv"
    !insertmacro ${action} "db_smjer.csv"
    !insertmacro ${action} "db_kolegij.csv"
    !insertmacro ${action} "db_kolegij_smjer.csv"
    !insertmacro ${action} "db_kolegij_nastavnik.csv"
!macroend

!macro NoteTable file
    ${If} ${FileExists} "$DataFolder\${file}"
        StrCpy $CatalogueFound 1
    ${EndIf}
!macroend

!macro MissTable file
    ${IfNot} ${FileExists} "$DataFolder\${file}"
        SetErrors
    ${EndIf}
!macroend

Function FindCatalogue
    StrCpy $CatalogueFound 0
    !insertmacro ForEachTable NoteTable
    ; An interrupted save holds the whole catalogue; the program's next start finishes it.
    ${If} ${FileExists} "$DataFolder\spremanje\gotovo"
        StrCpy $CatalogueFound 1
    ${EndIf}
FunctionEnd

Function .onInit
    ; An upgrade goes to the folder of the installed program.
    ReadRegStr $FormerFolder HKCU "${UNINSTALL_KEY}" "InstallLocation"
    ${IfNot} ${FileExists} "$FormerFolder\varlostudiji.exe"
        StrCpy $FormerFolder ""
    ${EndIf}
    ${If} $INSTDIR == ""
        StrCpy $INSTDIR "$LOCALAPPDATA\Programs\${PRODUCT}"
        ${If} $FormerFolder != ""
            StrCpy $INSTDIR $FormerFolder
        ${EndIf}
    ${EndIf}

    ; The program reads this variable, so its installer does too.
    ReadEnvStr $DataFolder LOCALAPPDATA
    ${If} $DataFolder == ""
        StrCpy $DataFolder $LOCALAPPDATA
    ${EndIf}
    StrCpy $DataFolder "$DataFolder\Varlostudiji"

    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/DATA=" $Data
    ${If} ${Errors}
        StrCpy $Data ""
    ${ElseIf} $Data != "demo"
    ${AndIf} $Data != "empty"
        MessageBox MB_OK|MB_ICONSTOP "$(WrongData)" /SD IDOK
        SetErrorLevel 2
        Quit
    ${EndIf}
FunctionEnd

Function ShowDataPage
    Call FindCatalogue
    ${If} $CatalogueFound = 1
        Abort ; leaves the page out
    ${EndIf}

    !insertmacro MUI_HEADER_TEXT "$(DataTitle)" "$(DataSubtitle)"
    nsDialogs::Create 1018
    Pop $0
    ${NSD_CreateLabel} 0 0u 100% 10u "$(DataText)"
    Pop $0
    ${NSD_CreateLabel} 8u 14u -8u 18u "$DataFolder"
    Pop $0
    ${NSD_CreateFirstRadioButton} 8u 38u -8u 12u "$(DataDemo)"
    Pop $DemoButton
    ${NSD_CreateAdditionalRadioButton} 8u 54u -8u 12u "$(DataEmpty)"
    Pop $EmptyButton
    ${NSD_CreateAdditionalRadioButton} 8u 70u -8u 12u "$(DataNothing)"
    Pop $NothingButton
    ${NSD_CreateLabel} 0 94u 100% 10u "$(DataPromise)"
    Pop $0

    ${If} $Data == "empty"
        StrCpy $0 $EmptyButton
    ${ElseIf} $Data == "nothing"
        StrCpy $0 $NothingButton
    ${Else}
        StrCpy $0 $DemoButton
    ${EndIf}
    ${NSD_Check} $0
    ${NSD_SetFocus} $0
    nsDialogs::Show
FunctionEnd

Function LeaveDataPage
    StrCpy $Data "nothing"
    ${NSD_GetState} $DemoButton $0
    ${If} $0 = ${BST_CHECKED}
        StrCpy $Data "demo"
    ${EndIf}
    ${NSD_GetState} $EmptyButton $0
    ${If} $0 = ${BST_CHECKED}
        StrCpy $Data "empty"
    ${EndIf}
FunctionEnd

; Without a catalogue the program could only report the missing file, so starting it is not proposed.
Function ShowFinishPage
    Call FindCatalogue
    ${If} $CatalogueFound = 0
        ${NSD_Uncheck} $mui.FinishPage.Run
    ${EndIf}
FunctionEnd

; --- Installing ---

; The files that the installer writes to a folder in addition to the program.
!macro RemoveFiles folder
    Delete "${folder}\varlostudiji-provjera.exe"
    Delete "${folder}\LICENSE.txt"
    Delete "${folder}\uninstall.exe"
    RMDir "${folder}" ; with anything else in it, it stays
!macroend

; Removes the program from its former folder.
Function RemoveFormerProgram
    ; The two paths may name one folder. Then this renames the new program, and it is renamed back.
    Rename "$FormerFolder\varlostudiji.exe" "$FormerFolder\varlostudiji.old"
    ${If} ${FileExists} "$INSTDIR\varlostudiji.exe"
        ClearErrors
        Delete "$FormerFolder\varlostudiji.old"
        ${IfNot} ${Errors}
            !insertmacro RemoveFiles "$FormerFolder"
            Return
        ${EndIf}
    ${EndIf}
    Rename "$FormerFolder\varlostudiji.old" "$FormerFolder\varlostudiji.exe"
FunctionEnd

Section
    SetOutPath "$INSTDIR"
    SetOverwrite on
    ClearErrors
    File "${PROGRAM}\varlostudiji.exe"
    File "${PROGRAM}\varlostudiji-provjera.exe"
    File "${PROGRAM}\LICENSE.txt"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    ${If} ${Errors}
        MessageBox MB_OK|MB_ICONSTOP "$(ProgramFailed)" /SD IDOK
        Abort "$(ProgramFailed)"
    ${EndIf}
    ${If} $FormerFolder != ""
    ${AndIf} $FormerFolder != $INSTDIR
        Call RemoveFormerProgram
    ${EndIf}
    CreateShortcut "$SMPROGRAMS\${PRODUCT}.lnk" "$INSTDIR\varlostudiji.exe"
    CreateShortcut "$SMPROGRAMS\${CHECK}.lnk" "$INSTDIR\varlostudiji-provjera.exe" "--cekaj" \
        "$INSTDIR\varlostudiji.exe"

    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "${PRODUCT}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\varlostudiji.exe"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "${PUBLISHER}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $0
SectionEnd

Section
    ; Even a part of a catalogue is the user's: demo tables beside it would make it inconsistent.
    Call FindCatalogue
    ${If} $CatalogueFound = 1
    ${OrIf} $Data == ""
    ${OrIf} $Data == "nothing"
        Return
    ${EndIf}

    SetOutPath "$DataFolder"
    SetOverwrite off
    ${If} $Data == "demo"
        File "${DEMO}\*.csv"
    ${Else}
        File "${EMPTY}\*.csv"
    ${EndIf}
    ; NSIS skips files that it must not replace, but also files that it cannot write: check that every table is there.
    ClearErrors
    !insertmacro ForEachTable MissTable
    ${If} ${Errors}
        SetErrorLevel 3
        MessageBox MB_OK|MB_ICONEXCLAMATION "$(DataFailed)" /SD IDOK
    ${EndIf}
SectionEnd

; --- Removing ---

Section "Uninstall"
    retry:
    ClearErrors
    Delete "$INSTDIR\varlostudiji.exe"
    ${If} ${Errors}
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(ProgramOpen)" /SD IDCANCEL IDRETRY retry
        Abort "$(ProgramOpen)"
    ${EndIf}
    !insertmacro RemoveFiles "$INSTDIR"
    RMDir "$LOCALAPPDATA\Programs" ; empty, it was made by the installer
    Delete "$SMPROGRAMS\${PRODUCT}.lnk"
    Delete "$SMPROGRAMS\${CHECK}.lnk"
    DeleteRegKey HKCU "${UNINSTALL_KEY}"
SectionEnd
