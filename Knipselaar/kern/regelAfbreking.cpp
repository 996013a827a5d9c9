#include "Knipselaar/kern/regelAfbreking.h"

#include <wx/arrstr.h>

namespace kern {

wxString breekAf(const wxString& regel, const std::function<bool(const wxString&)>& past) {
    if (past(regel)) {
        return regel;
    }
    wxString gereed;
    wxString deel;
    for (const wxString& woord : wxSplit(regel, ' ', '\0')) {
        const wxString langer = deel.empty() ? woord : deel + " " + woord;
        if (!deel.empty() && !past((gereed.empty() ? "" : vervolgInspringing) + langer)) {
            gereed += deel + "\n" + vervolgInspringing;
            deel = woord;
        } else {
            deel = langer;
        }
    }
    return gereed + deel;
}

std::vector<HeleRegel> maakHeel(const wxString& afgebroken) {
    std::vector<HeleRegel> regels;
    wxString rest;
    std::size_t plek = 0;
    for (const wxString& deel : wxSplit(afgebroken, '\n', '\0')) {
        if (!regels.empty() && deel.StartsWith(vervolgInspringing, &rest)) {
            regels.back().tekst += " " + rest;
        } else {
            regels.push_back({.tekst = deel, .begin = plek});
        }
        plek += deel.utf8_str().length() + 1;
    }
    return regels;
}

}  // namespace kern
