#include "Knipselaar/kern/systeem/paden.h"

#include <algorithm>

#include "Knipselaar/kern/systeem/windows/breed.h"
#include "Knipselaar/kern/systeem/windows/fout.h"
#include "Knipselaar/kern/systeem/windows/handvat.h"

namespace kern {

std::string naarPad(const wxString& tekst) {
    return windows::maakSmal(tekst.ToStdWstring());
}

wxString naarTekst(const std::string& pad) {
    return windows::maakBreed(pad);
}

std::string leesLink(const std::string& pad) {
    return isLink(pad) ? geefEchtPad(pad) : std::string();
}

std::string geefEchtPad(const std::string& pad, std::error_code& fout) {
    const std::wstring voluit = windows::maakVoluit(pad);
    if (windows::isApparaat(voluit)) {
        fout = windows::maakFout(ERROR_INVALID_NAME);
        return {};
    }
    const windows::Handvat handvat(CreateFileW(voluit.c_str(), FILE_READ_ATTRIBUTES, windows::deelAlles,
                                               nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    if (!handvat.isOpen()) {
        fout = windows::geefFout();
        return {};
    }
    std::wstring echt = windows::geefPad(handvat.geef());
    if (echt.empty()) {
        // Niet elk stuurprogramma van een schijf weet de weg terug. Tussen een boom en wat er bij het aflopen
        // in gevonden wordt liggen geen links; is het dat zelf ook niet, dan is het pad al echt.
        const std::error_code reden = windows::geefFout();
        if (isLink(pad)) {
            fout = reden;
            return {};
        }
        echt = voluit;
    }
    std::string smal = windows::maakSmal(windows::maakLeesbaar(std::move(echt)));
    std::replace(smal.begin(), smal.end(), '\\', '/');
    return smal;
}

bool ligtIn(std::string_view pad, std::string_view directory) {
    while (directory.size() > 1 && isScheiding(directory.back())) {
        directory.remove_suffix(1);
    }
    return !directory.empty() && pad.size() >= directory.size() &&
           maakSleutel(pad.substr(0, directory.size())) == maakSleutel(directory) &&
           (pad.size() == directory.size() || isScheiding(pad[directory.size()]));
}

std::string maakSleutel(std::string_view pad) {
    std::wstring breed = windows::maakBreed(pad);
    std::replace(breed.begin(), breed.end(), L'\\', L'/');
    CharUpperBuffW(breed.data(), static_cast<DWORD>(breed.size()));
    return windows::maakSmal(breed);
}

std::string_view geefScheidingstekens() {
    return "/\\";
}

}  // namespace kern
