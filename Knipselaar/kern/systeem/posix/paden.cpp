#include "Knipselaar/kern/systeem/paden.h"

#include <wx/strconv.h>

#include <cstdlib>
#include <filesystem>
#include <memory>

#include "Knipselaar/kern/systeem/kenmerken.h"
#include "Knipselaar/kern/systeem/posix/fout.h"

namespace kern {

std::string naarPad(const wxString& tekst) {
    const auto bytes = tekst.fn_str();
    return {bytes.data(), bytes.length()};
}

wxString naarTekst(const std::string& pad) {
    return {pad.c_str(), *wxConvFileName};
}

bool isLink(const std::string& pad) {
    Kenmerken kenmerken;
    return !leesEigenKenmerken(pad, kenmerken) && kenmerken.soort == Bestandssoort::link;
}

std::string leesLink(const std::string& pad) {
    std::error_code fout;
    return std::filesystem::read_symlink(pad, fout).string();
}

bool isZelfdePlaats(const std::string& een, const std::string& ander) {
    Kenmerken eerste;
    Kenmerken tweede;
    return een == ander ||
           (!leesKenmerken(ander, tweede) && !leesKenmerken(een, eerste) && eerste.isZelfdePlaats(tweede));
}

std::string geefEchtPad(const std::string& pad, std::error_code& fout) {
    const std::unique_ptr<char, decltype(&std::free)> echt(realpath(pad.c_str(), nullptr), &std::free);
    if (echt == nullptr) {
        fout = posix::geefFout();
        return {};
    }
    return echt.get();
}

std::string geefEchtPad(const std::string& pad) {
    std::error_code fout;
    return geefEchtPad(pad, fout);
}

bool ligtIn(std::string_view pad, std::string_view directory) {
    return pad == directory || directory == "/" ||
           (pad.starts_with(directory) && pad.substr(directory.size()).starts_with('/'));
}

std::string maakSleutel(std::string_view pad) {
    return std::string(pad);
}

std::string_view geefNaam(std::string_view pad) {
    return pad.substr(pad.rfind('/') + 1);
}

std::string plak(std::string_view directory, std::string_view pad) {
    if (directory.empty() || pad.empty()) {
        return std::string(directory.empty() ? pad : directory);
    }
    std::string uit(directory);
    if (!uit.ends_with('/')) {
        uit += '/';
    }
    return uit += pad;
}

}  // namespace kern
