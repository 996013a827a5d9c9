#include "Knipselaar/kern/logregels.h"

#include <string>

namespace kern {

namespace {

/// Een batch schrijft er voor elk bestand twee; een opmaak uitleggen zou vier keer zo lang duren.
wxString maakNummerregel(const wchar_t* begin, long nummer, const wxString& naam) {
    wxString regel(begin);
    regel += std::to_wstring(nummer);
    regel += L':';
    regel += naam;
    regel += L'\n';
    return regel;
}

}  // namespace

wxString regelOrigineleDirectory(const wxString& pad) {
    return "Originele dir : " + pad + "\n";
}

wxString regelStudentDirectory(const wxString& pad) {
    return "Student dir : " + pad + "\n";
}

wxString regelTotaal(long aantal, const wxString& pad) {
    return wxString::Format("In totaal %ld bestanden en directories gevonden", aantal) + " in " + pad + "\n";
}

wxString regelOvergeslagen(long nummer, const wxString& naam) {
    return maakNummerregel(L"Overgeslagen ", nummer, naam);
}

wxString regelOrigineel(long nummer, const wxString& naam) {
    return maakNummerregel(L"Orig bestand ", nummer, naam);
}

wxString regelStudent(long nummer, const wxString& naam) {
    return maakNummerregel(L"Student bestand ", nummer, naam);
}

}  // namespace kern
