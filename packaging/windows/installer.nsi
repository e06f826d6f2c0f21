; The installer for Windows. To be given: VERSION, STAGING (the folder with what is installed),
; FILES (a list of commands that take it away again), ICON and OUTFILE.

Target amd64-unicode
Unicode true
ManifestDPIAware true
SetCompressor /SOLID lzma

!include "MUI2.nsh"
!include "FileFunc.nsh"

!define KEPT "Software\Microsoft\Windows\CurrentVersion\Uninstall\Loftwing"
!define CLASSES "Software\Classes"

Name "Loftwing"
OutFile "${OUTFILE}"
BrandingText "Loftwing ${VERSION}"
InstallDir "$PROGRAMFILES64\Loftwing"
InstallDirRegKey HKLM "${KEPT}" "InstallLocation"
RequestExecutionLevel admin

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Loftwing"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Loftwing"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "CompanyName" "Loftwing developers"
VIAddVersionKey "LegalCopyright" "Loftwing developers"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\loftwing.exe"

!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES

; The languages of the program; the system's is taken without a question.
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "French"
!insertmacro MUI_LANGUAGE "German"
!insertmacro MUI_LANGUAGE "Spanish"

LangString RibFile ${LANG_ENGLISH} "Loftwing rib"
LangString RibFile ${LANG_FRENCH} "Nervure Loftwing"
LangString RibFile ${LANG_GERMAN} "Loftwing-Rippe"
LangString RibFile ${LANG_SPANISH} "Costilla de Loftwing"
LangString AirfoilFile ${LANG_ENGLISH} "Airfoil coordinates"
LangString AirfoilFile ${LANG_FRENCH} "Coordonnées de profil"
LangString AirfoilFile ${LANG_GERMAN} "Profilkoordinaten"
LangString AirfoilFile ${LANG_SPANISH} "Coordenadas de perfil"

; A kind of file that the program opens.
!macro Kind CLASS WORDS
    WriteRegStr HKLM "${CLASSES}\${CLASS}" "" "${WORDS}"
    WriteRegStr HKLM "${CLASSES}\${CLASS}\DefaultIcon" "" "$INSTDIR\loftwing.exe,0"
    WriteRegStr HKLM "${CLASSES}\${CLASS}\shell\open\command" "" '"$INSTDIR\loftwing.exe" "%1"'
!macroend

; An ending that others have too: the program is offered for it and takes it from nobody.
!macro Offer ENDING CLASS
    WriteRegStr HKLM "${CLASSES}\${ENDING}\OpenWithProgids" "${CLASS}" ""
    WriteRegStr HKLM "${CLASSES}\Applications\loftwing.exe\SupportedTypes" "${ENDING}" ""
!macroend

!macro NoLonger ENDING CLASS
    DeleteRegValue HKLM "${CLASSES}\${ENDING}\OpenWithProgids" "${CLASS}"
    DeleteRegKey /ifempty HKLM "${CLASSES}\${ENDING}\OpenWithProgids"
    DeleteRegKey /ifempty HKLM "${CLASSES}\${ENDING}"
!macroend

; The desktop is told that kinds of files have come or gone.
!macro TellDesktop
    System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend

Section
    SetShellVarContext all
    ; Files of an older version that this one hasn't got would stay for ever.
    ReadRegStr $0 HKLM "${KEPT}" "InstallLocation"
    ${If} $0 != ""
    ${AndIf} ${FileExists} "$0\uninstall.exe"
        ExecWait '"$0\uninstall.exe" /S _?=$0'
    ${EndIf}

    SetOutPath "$INSTDIR"
    File /r "${STAGING}/*"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateShortcut "$SMPROGRAMS\Loftwing.lnk" "$INSTDIR\loftwing.exe"

    !insertmacro Kind "Loftwing.Rib" "$(RibFile)"
    !insertmacro Kind "Loftwing.Airfoil" "$(AirfoilFile)"
    WriteRegStr HKLM "${CLASSES}\.lfw" "" "Loftwing.Rib"
    !insertmacro Offer ".lfw" "Loftwing.Rib"
    !insertmacro Offer ".dat" "Loftwing.Airfoil"
    !insertmacro Offer ".cor" "Loftwing.Airfoil"
    WriteRegStr HKLM "${CLASSES}\Applications\loftwing.exe\shell\open\command" "" \
        '"$INSTDIR\loftwing.exe" "%1"'
    !insertmacro TellDesktop

    WriteRegStr HKLM "${KEPT}" "DisplayName" "Loftwing"
    WriteRegStr HKLM "${KEPT}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKLM "${KEPT}" "DisplayIcon" "$INSTDIR\loftwing.exe,0"
    WriteRegStr HKLM "${KEPT}" "Publisher" "Loftwing developers"
    WriteRegStr HKLM "${KEPT}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKLM "${KEPT}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKLM "${KEPT}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKLM "${KEPT}" "NoModify" 1
    WriteRegDWORD HKLM "${KEPT}" "NoRepair" 1
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegDWORD HKLM "${KEPT}" "EstimatedSize" $0
SectionEnd

; What the installer brought goes, and nothing else: the folder may be one that holds other things, and
; airfoils, ribs and settings are the user's.
Section "Uninstall"
    SetShellVarContext all
    !include "${FILES}"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\Loftwing.lnk"

    ReadRegStr $0 HKLM "${CLASSES}\.lfw" ""
    ${If} $0 == "Loftwing.Rib"
        DeleteRegValue HKLM "${CLASSES}\.lfw" ""
    ${EndIf}
    !insertmacro NoLonger ".lfw" "Loftwing.Rib"
    !insertmacro NoLonger ".dat" "Loftwing.Airfoil"
    !insertmacro NoLonger ".cor" "Loftwing.Airfoil"
    DeleteRegKey HKLM "${CLASSES}\Loftwing.Rib"
    DeleteRegKey HKLM "${CLASSES}\Loftwing.Airfoil"
    DeleteRegKey HKLM "${CLASSES}\Applications\loftwing.exe"
    DeleteRegKey HKLM "${KEPT}"
    !insertmacro TellDesktop
SectionEnd
