// Wat DesktopApp over het platform weet: de naam van het besturingssysteem en de plaats van het programma.

#include <wx/filefn.h>
#include <wx/filename.h>
#include <wx/intl.h>
#include <wx/utils.h>

#include <algorithm>
#include <array>
#include <cstdlib>

#include "gemeenschappelijk/desktopApp.h"

namespace {

struct OSNaam {
    wxOperatingSystemId id;
    const char* naam;
};

constexpr std::array<OSNaam, 14> osNamen{{
    {wxOS_MAC_OS, "Mac OS 8/9/X (Mac arch)"},
    {wxOS_MAC_OSX_DARWIN, "Mac OS X (Darwin arch)"},
    {wxOS_WINDOWS_9X, "Microsoft Windows 95/98"},
    {wxOS_WINDOWS_NT, "Microsoft Windows 2000/NT/XP"},
    {wxOS_WINDOWS_MICRO, "Micro Windows"},
    {wxOS_WINDOWS_CE, "Microsoft Windows CE"},
    {wxOS_UNIX_LINUX, "Linux"},
    {wxOS_UNIX_FREEBSD, "FreeBSD"},
    {wxOS_UNIX_OPENBSD, "OpenBSD"},
    {wxOS_UNIX_NETBSD, "NetBSD"},
    {wxOS_UNIX_SOLARIS, "SUN Solaris"},
    {wxOS_UNIX_AIX, "IBM AIX"},
    {wxOS_UNIX_HPUX, "HP-UX"},
    {wxOS_OS2, "IBM OS/2"},
}};

wxString leesVariabele(const wxString& naam) {
    const wxCharBuffer ruweNaam = naam.mb_str(wxConvLibc);
    const char* waarde = std::getenv(ruweNaam ? ruweNaam.data() : "");
    return waarde == nullptr ? wxString() : wxString(waarde, wxConvLibc);
}

}  // namespace

wxString DesktopApp::verkrijgOSNaam(wxOperatingSystemId id) {
    const auto* gevonden =
        std::find_if(osNamen.begin(), osNamen.end(), [id](const OSNaam& os) { return os.id == id; });
    return gevonden == osNamen.end() ? wxGetTranslation("Unbekannt") : wxString(gevonden->naam);
}

wxString DesktopApp::wxFindAppPath(const wxString& startNaam, const wxString& werkDir,
                                   const wxString& variabeleNaam) {
    if (!variabeleNaam.empty()) {
        const wxString waarde = leesVariabele(variabeleNaam);
        if (!waarde.empty()) {
            return waarde;
        }
    }
    if (wxIsAbsolutePath(startNaam)) {
        return wxPathOnly(startNaam);
    }
    wxString naastWerkDir = werkDir;
    if (!naastWerkDir.EndsWith("/")) {
        naastWerkDir += "/";
    }
    naastWerkDir += startNaam;
    if (wxFileExists(naastWerkDir)) {
        return wxPathOnly(naastWerkDir);
    }
    wxPathList zoekpad;
    zoekpad.AddEnvList("PATH");
    const wxString gevonden = zoekpad.FindAbsoluteValidPath(startNaam);
    return gevonden.empty() ? wxString() : wxPathOnly(gevonden);
}
