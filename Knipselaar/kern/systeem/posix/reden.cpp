#include "Knipselaar/kern/systeem/reden.h"

#include <cerrno>

namespace kern {

std::string noemReden(const std::error_code& fout) {
    switch (fout.value()) {
        case ENOENT:
            return "bestaat niet";
        case EACCES:
        case EPERM:
            return "geen toegang; geef rechten of kies een andere plaats";
        case ENOSPC:
        case EDQUOT:
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
            return fout.message();
    }
}

}  // namespace kern
