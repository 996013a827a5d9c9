#include "Knipselaar/kern/systeem/windows/fout.h"

#include <cerrno>

namespace kern::windows {

namespace {

/// Nul als er geen naam voor is.
int naarErrno(DWORD nummer) {
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
        case ERROR_FILE_EXISTS:
        case ERROR_ALREADY_EXISTS:
            return EEXIST;
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
        case ERROR_NOT_SAME_DEVICE:
            return EXDEV;
        case ERROR_TOO_MANY_OPEN_FILES:
            return EMFILE;
        case ERROR_BROKEN_PIPE:
        case ERROR_NO_DATA:
        case ERROR_PIPE_NOT_CONNECTED:
            return EPIPE;
        default:
            return 0;
    }
}

}  // namespace

std::error_code maakFout(DWORD nummer) {
    const int naam = naarErrno(nummer);
    return naam == 0 ? std::error_code(static_cast<int>(nummer), std::system_category())
                     : std::error_code(naam, std::generic_category());
}

std::error_code geefFout() {
    return maakFout(GetLastError());
}

std::error_code keur(BOOL gelukt) {
    return gelukt != 0 ? std::error_code() : geefFout();
}

}  // namespace kern::windows
