#include "Knipselaar/kern/systeem/paden.h"

#include <wx/strconv.h>

#include <cstdlib>
#include <filesystem>
#include <memory>

#include "Knipselaar/kern/systeem/posix/fout.h"

namespace kern {

std::string naarPad(const wxString& tekst) {
    const auto bytes = tekst.fn_str();
    return {bytes.data(), bytes.length()};
}

wxString naarTekst(const std::string& pad) {
    return {pad.c_str(), *wxConvFileName};
}

std::string leesLink(const std::string& pad) {
    std::error_code fout;
    return std::filesystem::read_symlink(pad, fout).string();
}

std::string geefEchtPad(const std::string& pad, std::error_code& fout) {
    const std::unique_ptr<char, decltype(&std::free)> echt(realpath(pad.c_str(), nullptr), &std::free);
    if (echt == nullptr) {
        fout = posix::geefFout();
        return {};
    }
    return echt.get();
}

bool ligtIn(std::string_view pad, std::string_view directory) {
    return pad == directory || directory == "/" ||
           (pad.starts_with(directory) && pad.substr(directory.size()).starts_with('/'));
}

std::string maakSleutel(std::string_view pad) {
    return std::string(pad);
}

std::string_view geefScheidingstekens() {
    return "/";
}

}  // namespace kern
