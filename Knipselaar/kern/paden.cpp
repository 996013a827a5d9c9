#include "Knipselaar/kern/paden.h"

#include <sys/stat.h>

#include <cstdlib>
#include <memory>

namespace kern {

bool isLink(const wxString& pad) {
    struct stat gegevens {};
    return lstat(pad.fn_str(), &gegevens) == 0 && S_ISLNK(gegevens.st_mode);
}

bool isZelfdePlaats(const wxString& een, const wxString& ander) {
    struct stat eerste {};
    struct stat tweede {};
    return een == ander || (stat(ander.fn_str(), &tweede) == 0 && stat(een.fn_str(), &eerste) == 0 &&
                            eerste.st_dev == tweede.st_dev && eerste.st_ino == tweede.st_ino);
}

std::string geefEchtPad(const wxString& pad) {
    const std::unique_ptr<char, decltype(&std::free)> echt(realpath(pad.fn_str(), nullptr), &std::free);
    return echt == nullptr ? std::string() : std::string(echt.get());
}

}  // namespace kern
