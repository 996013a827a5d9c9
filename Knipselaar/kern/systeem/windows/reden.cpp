#include "Knipselaar/kern/systeem/reden.h"

#include <windows.h>

#include <cerrno>

namespace kern {

namespace {

/// Hoe de C-bibliotheek een fout van Windows zou noemen; nul als zij daar geen naam voor heeft.
int naarErrno(int nummer) {
    switch (nummer) {
        case ERROR_FILE_NOT_FOUND:
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_DRIVE:
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME:
        case ERROR_INVALID_NAME:
            return ENOENT;
        case ERROR_ACCESS_DENIED:
        case ERROR_PRIVILEGE_NOT_HELD:
            return EACCES;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
        case ERROR_NOT_ENOUGH_QUOTA:
            return ENOSPC;
        case ERROR_FILE_TOO_LARGE:
            return EFBIG;
        case ERROR_WRITE_PROTECT:
            return EROFS;
        case ERROR_DIRECTORY:
            return ENOTDIR;
        case ERROR_FILENAME_EXCED_RANGE:
        case ERROR_BUFFER_OVERFLOW:
            return ENAMETOOLONG;
        case ERROR_CANT_RESOLVE_FILENAME:
            return ELOOP;
        case ERROR_BROKEN_PIPE:
        case ERROR_NO_DATA:
            return EPIPE;
        default:
            return 0;
    }
}

std::string noem(int foutnummer, const std::error_code& fout) {
    switch (foutnummer) {
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
            return fout.message();
    }
}

}  // namespace

std::string noemReden(const std::error_code& fout) {
    if (fout.category() != std::system_category()) {
        return noem(fout.value(), fout);
    }
    switch (fout.value()) {
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
            return "een ander programma heeft het open; sluit het daar";
        case ERROR_FILE_READ_ONLY:
            return "het bestand is alleen-lezen; haal dat kenmerk eraf";
        default:
            return noem(naarErrno(fout.value()), fout);
    }
}

}  // namespace kern
