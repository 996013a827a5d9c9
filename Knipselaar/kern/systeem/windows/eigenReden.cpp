#include "Knipselaar/kern/systeem/eigenReden.h"

#include "Knipselaar/kern/systeem/windows/fout.h"

namespace kern {

// De toolkit geeft de fouten van Windows zoals ze zijn.
std::error_code maakAlgemeen(const std::error_code& fout) {
    return fout.category() == std::system_category() ? windows::maakFout(static_cast<DWORD>(fout.value()))
                                                     : fout;
}

std::string noemEigenReden(const std::error_code& fout) {
    if (fout.category() == std::system_category()) {
        switch (fout.value()) {
            case ERROR_SHARING_VIOLATION:
            case ERROR_LOCK_VIOLATION:
                return "een ander programma heeft het open; sluit het daar";
            case ERROR_FILE_READ_ONLY:
                return "het bestand is alleen-lezen; haal dat kenmerk eraf";
            default:
                break;
        }
    }
    return "fout " + std::to_string(fout.value()) + " van het systeem";
}

}  // namespace kern
