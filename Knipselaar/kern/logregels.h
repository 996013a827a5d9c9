#pragma once

// De regels waarmee een batch in de editors verslag doet, elk met "\n" aan het einde. Tussen voorvoegsel en
// naam staat geen spatie.

#include <wx/string.h>

namespace kern {

wxString regelOrigineleDirectory(const wxString& pad);
wxString regelStudentDirectory(const wxString& pad);
wxString regelTotaal(long aantal, const wxString& pad);
wxString regelOvergeslagen(long nummer, const wxString& naam);
wxString regelOrigineel(long nummer, const wxString& naam);
wxString regelStudent(long nummer, const wxString& naam);

}  // namespace kern
