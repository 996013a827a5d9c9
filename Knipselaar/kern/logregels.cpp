#include "Knipselaar/kern/logregels.h"

namespace kern {

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
    return wxString::Format("Overgeslagen %ld:", nummer) + naam + "\n";
}

wxString regelOrigineel(long nummer, const wxString& naam) {
    return wxString::Format("Orig bestand %ld:", nummer) + naam + "\n";
}

wxString regelStudent(long nummer, const wxString& naam) {
    return wxString::Format("Student bestand %ld:", nummer) + naam + "\n";
}

}  // namespace kern
