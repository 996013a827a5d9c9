; Het installatieprogramma voor Windows: voor de gebruiker zelf, zonder beheerdersrechten. Wat het neerzet en wat het
; weer weghaalt staat in twee lijsten die scripts/pakket-windows.sh maakt; zo haalt het niets weg dat niet van hem is.
Target amd64-unicode
ManifestDPIAware true
SetCompressor /SOLID lzma
RequestExecutionLevel user

!include "MUI2.nsh"

!define PRODUCT "Knipselaar"
!define MAKER "Werkplaats Knipselaar"
!define REGISTRATIE "Software\Microsoft\Windows\CurrentVersion\Uninstall\${PRODUCT}"

Name "${PRODUCT} ${VERSIE}"
OutFile "${UITVOER}"
InstallDir "$LOCALAPPDATA\Programs\${PRODUCT}"
; Een nieuwe uitgave komt waar de vorige stond.
InstallDirRegKey HKCU "${REGISTRATIE}" "InstallLocation"
BrandingText "${MAKER}"

VIProductVersion "${VERSIE}.0.0"
VIAddVersionKey /LANG=0x0413 "ProductName" "${PRODUCT}"
VIAddVersionKey /LANG=0x0413 "ProductVersion" "${VERSIE}"
VIAddVersionKey /LANG=0x0413 "FileVersion" "${VERSIE}"
VIAddVersionKey /LANG=0x0413 "FileDescription" "Installatie van ${PRODUCT}"
VIAddVersionKey /LANG=0x0413 "CompanyName" "${MAKER}"
VIAddVersionKey /LANG=0x0413 "LegalCopyright" "(c)2025-2026 ing. Team Knipselaar"

!define MUI_ICON "${PICTOGRAM}"
!define MUI_UNICON "${PICTOGRAM}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\knipselaar.exe"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Dutch"

Section
    !include "${LIJSTEN}\neer.nsh"
    SetOutPath "$INSTDIR"
    WriteUninstaller "$INSTDIR\verwijder.exe"
    CreateShortcut "$SMPROGRAMS\${PRODUCT}.lnk" "$INSTDIR\knipselaar.exe"
    WriteRegStr HKCU "${REGISTRATIE}" "DisplayName" "${PRODUCT}"
    WriteRegStr HKCU "${REGISTRATIE}" "DisplayVersion" "${VERSIE}"
    WriteRegStr HKCU "${REGISTRATIE}" "DisplayIcon" "$INSTDIR\knipselaar.exe"
    WriteRegStr HKCU "${REGISTRATIE}" "Publisher" "${MAKER}"
    WriteRegStr HKCU "${REGISTRATIE}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${REGISTRATIE}" "UninstallString" '"$INSTDIR\verwijder.exe"'
    WriteRegStr HKCU "${REGISTRATIE}" "QuietUninstallString" '"$INSTDIR\verwijder.exe" /S'
    WriteRegDWORD HKCU "${REGISTRATIE}" "EstimatedSize" ${KILOBYTES}
    WriteRegDWORD HKCU "${REGISTRATIE}" "NoModify" 1
    WriteRegDWORD HKCU "${REGISTRATIE}" "NoRepair" 1
SectionEnd

Section "Uninstall"
    Delete "$SMPROGRAMS\${PRODUCT}.lnk"
    Delete "$INSTDIR\verwijder.exe"
    !include "${LIJSTEN}\weg.nsh"
    ; Buiten de directory van het programma kan hijzelf pas weg; een bestand van de gebruiker erin houdt haar.
    SetOutPath "$TEMP"
    RMDir "$INSTDIR"
    DeleteRegKey HKCU "${REGISTRATIE}"
SectionEnd
