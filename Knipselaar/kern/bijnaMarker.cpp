#include "Knipselaar/kern/bijnaMarker.h"

#include <wx/crt.h>

#include <algorithm>

namespace kern {

namespace {

constexpr unsigned char eersteNietAscii = 0x80;

/// De tekens die er voor de gelijkenis niet toe doen, zolang ze ASCII zijn.
constexpr std::string_view bijzaken = " \t\v\f\r/*-#";

constexpr std::array<bool, 256> maakBijzaakTabel() {
    std::array<bool, 256> tabel{};
    for (const char teken : bijzaken) {
        tabel.at(static_cast<unsigned char>(teken)) = true;
    }
    return tabel;
}

constexpr std::array<bool, 256> bijzaakTabel = maakBijzaakTabel();

constexpr bool isBijzaak(char teken) {
    return bijzaakTabel[static_cast<unsigned char>(teken)];
}

constexpr bool isAscii(char teken) {
    return static_cast<unsigned char>(teken) < eersteNietAscii;
}

constexpr char maakKlein(char teken) {
    return teken >= 'A' && teken <= 'Z' ? static_cast<char>(teken - 'A' + 'a') : teken;
}

/// De kleine letter bij een teken. De letters van West-Europa ook als de taal van het systeem ze niet kent.
wxUniChar maakKlein(wxUniChar teken) {
    constexpr wxUint32 eersteHoofdletter = 0xC0;
    constexpr wxUint32 laatsteHoofdletter = 0xDE;
    constexpr wxUint32 maalteken = 0xD7;
    constexpr wxUint32 afstand = 0x20;
    const wxUint32 waarde = teken.GetValue();
    const bool isHoofdletter =
        waarde >= eersteHoofdletter && waarde <= laatsteHoofdletter && waarde != maalteken;
    return isHoofdletter ? wxUniChar(waarde + afstand) : wxUniChar(wxTolower(teken));
}

/// Kleine letters, zonder bijzaken. Een vaste spatie is ook een blanco teken; tekstverwerkers zetten haar.
std::string geefHoofdzaak(const wxString& tekst) {
    const wxUniChar vasteSpatie(0xA0);
    wxString hoofdzaak;
    for (const wxUniChar teken : tekst) {
        if (teken != vasteSpatie && !(teken.IsAscii() && isBijzaak(static_cast<char>(teken.GetValue())))) {
            hoofdzaak += maakKlein(teken);
        }
    }
    return hoofdzaak.utf8_string();
}

}  // namespace

BijnaMarker::BijnaMarker(const wxString& marker) : kern_(geefHoofdzaak(marker)) {
    if (kern_.find_first_not_of('?') == std::string::npos) {
        kern_.clear();
    }
}

bool BijnaMarker::lijkt(std::string_view regel) const {
    std::size_t plek = 0;
    for (const char teken : regel) {
        if (isBijzaak(teken)) {
            continue;
        }
        if (!isAscii(teken)) {
            return !kern_.empty() && geefHoofdzaak(wxString::FromUTF8(regel.data(), regel.size())) == kern_;
        }
        if (plek == kern_.size() || kern_[plek] != maakKlein(teken)) {
            return false;
        }
        ++plek;
    }
    return plek == kern_.size() && plek > 0;
}

BijnaZoeker::BijnaZoeker(std::vector<BijnaMarker> markers) : markers_(std::move(markers)) {
    for (const BijnaMarker& marker : markers_) {
        const std::string& hoofdzaak = marker.geefKern();
        if (hoofdzaak.empty()) {
            continue;
        }
        for (unsigned byte = 0; byte < kanBegin_.size(); ++byte) {
            const char teken = static_cast<char>(byte);
            const bool kan = !isAscii(teken);
            const bool begint = teken != '\n' && maakKlein(teken) == hoofdzaak.front();
            kanBegin_.at(byte) = kanBegin_.at(byte) || kan || begint;
            const bool volgt = hoofdzaak.size() == 1
                                   ? teken == '\n'
                                   : maakKlein(teken) == hoofdzaak[1] || !isAscii(hoofdzaak[1]);
            kanVolgen_.at(byte) = kanVolgen_.at(byte) || kan || isBijzaak(teken) || volgt;
        }
    }
}

std::optional<Regel> BijnaZoeker::zoekRegel(std::string_view regels, std::size_t vanaf) const {
    const std::size_t voorbij = regels.rfind('\n') + 1;  // nul als er geen hele regel is
    for (std::size_t begin = vanaf; begin < voorbij;) {
        std::size_t plek = begin;
        // Een regeleinde is geen bijzaak.
        while (isBijzaak(regels[plek])) {
            ++plek;
        }
        // Twee tekens zeggen van bijna elke regel dat zij op geen marker lijkt. Staat er één, dan is het
        // tweede haar regeleinde.
        const bool kan = kanBegin_[static_cast<unsigned char>(regels[plek])] &&
                         kanVolgen_[static_cast<unsigned char>(regels[plek + 1])];
        const std::size_t einde = regels.find('\n', plek);
        if (kan && geefMarker(regels.substr(begin, einde - begin))) {
            return Regel{begin, einde + 1};
        }
        begin = einde + 1;
    }
    return std::nullopt;
}

std::optional<std::size_t> BijnaZoeker::geefMarker(std::string_view regel) const {
    const auto marker = std::find_if(markers_.begin(), markers_.end(), [regel](const BijnaMarker& kandidaat) {
        return kandidaat.lijkt(regel);
    });
    if (marker == markers_.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(marker - markers_.begin());
}

}  // namespace kern
