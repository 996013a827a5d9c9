#include "Knipselaar/kern/systeem/reden.h"

#include <cerrno>

#include "Knipselaar/kern/systeem/windows/fout.h"

namespace kern {

namespace {

std::string noemVanWindows(const std::error_code& fout) {
    switch (fout.value()) {
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
            return "een ander programma heeft het open; sluit het daar";
        case ERROR_FILE_READ_ONLY:
            return "het bestand is alleen-lezen; haal dat kenmerk eraf";
        default:
            return fout.message();
    }
}

}  // namespace

std::string noemReden(const std::error_code& fout) {
    // De toolkit geeft de fouten van Windows zoals ze zijn.
    const std::error_code eigen = fout.category() == std::system_category()
                                      ? windows::maakFout(static_cast<DWORD>(fout.value()))
                                      : fout;
    if (eigen.category() == std::system_category()) {
        return noemVanWindows(eigen);
    }
    switch (eigen.value()) {
        case ENOENT:
            return "bestaat niet";
        case EACCES:
        case EPERM:
            return "geen toegang; geef rechten of kies een andere plaats";
        case ENOSPC:
            return "de schijf is vol; maak ruimte en probeer het opnieuw";
        case EFBIG:
            return "het bestand wordt groter dan mag";
        case EROFS:
            return "het bestandssysteem is alleen te lezen; kies een andere plaats";
        case EISDIR:
            return "is een directory; noem een bestand";
        case ENOTDIR:
            return "een deel van het pad is geen directory";
        case ENAMETOOLONG:
            return "de naam is te lang";
        case ELOOP:
            return "de links lopen in een kring";
        case EPIPE:
            return "de lezer van de pijp is gestopt";
        case EINTR:
            return "onderbroken";
        default:
            return eigen.message();
    }
}

}  // namespace kern
