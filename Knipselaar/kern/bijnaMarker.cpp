#include "Knipselaar/kern/bijnaMarker.h"

#include <wx/crt.h>

#include <algorithm>
#include <experimental/simd>
#include <set>
#include <span>
#include <utility>

namespace kern {

namespace {

namespace simd = std::experimental;

/// Zoveel bytes als de machine in één stap bekijkt.
using Bytevak = simd::native_simd<unsigned char>;

constexpr unsigned char eersteNietAscii = 0x80;

/// Hiermee beginnen in UTF-8 alle letters van West-Europa, kleine en hoofdletters.
constexpr unsigned char westEuropees = 0xC3;

/// Elke bijzaak en elk regeleinde is minder.
constexpr unsigned char voorbijBijzaken = '0';

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

/// Maakt van een kleine letter en haar hoofdletter hetzelfde. Ook van een paar andere tekens; wie er een
/// vindt, kijkt toch nog.
template <typename Byte>
Byte neemLettersSamen(const Byte& byte) {
    return static_cast<Byte>(byte | Byte(0x20));
}

/// Bij welke bytes van een vak een regel kan beginnen die op een marker lijkt, bijzaken niet meegeteld. Hun
/// buren zeggen van bijna elke byte dat het niet zo is; het vak heeft er daarom aan weerszijden nog een.
/// @param beginnen  van elke marker een vak vol met het eerste teken dat telt, en een met het tweede.
auto zoekBeginnen(const char* vak, std::span<const char> beginnen) {
    const Bytevak ervoor(vak - 1, simd::element_aligned);
    const Bytevak hier(vak, simd::element_aligned);
    const Bytevak erna(vak + 1, simd::element_aligned);
    const Bytevak letter = neemLettersSamen(hier);
    const Bytevak volgende = neemLettersSamen(erna);
    const auto geenLetter = erna < voorbijBijzaken || erna >= eersteNietAscii;
    const auto isVervolg = (erna & Bytevak(0xC0)) == 0x80;  // van een teken buiten ASCII
    // Een teken buiten ASCII kan niet meetellen of een kleine letter hebben die ASCII is. Alleen een letter
    // van West-Europa doet dat nooit, en die komt in teksten veel voor.
    auto kan = hier >= eersteNietAscii && isVervolg && hier != westEuropees;
    for (std::size_t plek = 0; plek < beginnen.size(); plek += 2 * Bytevak::size()) {
        const Bytevak eerste(&beginnen[plek], simd::element_aligned);
        const Bytevak tweede(&beginnen[plek + Bytevak::size()], simd::element_aligned);
        kan |= letter == eerste && (geenLetter || volgende == tweede);
    }
    return kan && ervoor < voorbijBijzaken;
}

/// Hetzelfde aan het begin of het einde van de regels, waar een vak over hun rand heen steekt.
auto zoekBeginnenAanRand(std::string_view regels, std::size_t plek, std::span<const char> beginnen) {
    std::array<char, Bytevak::size() + 2> bytes;
    bytes.fill('-');  // een bijzaak, en niet met een ander teken samen te nemen: daar begint nooit iets
    const std::size_t ervoor = plek == 0 ? 0 : 1;
    regels.copy(bytes.data() + 1 - ervoor, Bytevak::size() + 1 + ervoor, plek - ervoor);
    return zoekBeginnen(bytes.data() + 1, beginnen);
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
    std::set<std::pair<char, char>> beginnen;
    for (const BijnaMarker& marker : markers_) {
        const std::string& hoofdzaak = marker.geefKern();
        if (hoofdzaak.empty() || hoofdzaak.find('\n') != std::string::npos) {
            continue;  // daar lijkt geen regel op
        }
        beginnen.emplace(hoofdzaak.front(), hoofdzaak.size() == 1 ? '\n' : hoofdzaak[1]);
        for (unsigned byte = 0; byte < kanEindigen_.size(); ++byte) {
            const char teken = static_cast<char>(byte);
            kanEindigen_.at(byte) = kanEindigen_.at(byte) || !isAscii(teken) || !isAscii(hoofdzaak.back()) ||
                                    maakKlein(teken) == hoofdzaak.back();
        }
    }
    for (const auto& [eerste, tweede] : beginnen) {
        beginnen_.insert(beginnen_.end(), Bytevak::size(), neemLettersSamen(eerste));
        beginnen_.insert(beginnen_.end(), Bytevak::size(), neemLettersSamen(tweede));
    }
}

std::optional<Regel> BijnaZoeker::zoekRegel(std::string_view regels, std::size_t vanaf) const {
    std::size_t plek = vanaf;
    while ((plek = zoekBegin(regels, plek)) != std::string_view::npos) {
        std::size_t begin = plek;
        while (begin > vanaf && isBijzaak(regels[begin - 1])) {
            --begin;
        }
        if (begin > vanaf && regels[begin - 1] != '\n') {
            ++plek;
            continue;
        }
        const std::size_t einde = regels.find('\n', plek);
        if (einde == std::string_view::npos) {
            break;
        }
        // Op plek kan zelf een bijzaak staan: samengenomen is een tab bijvoorbeeld een haakje.
        std::size_t laatste = einde - 1;
        while (laatste > plek && isBijzaak(regels[laatste])) {
            --laatste;
        }
        plek = einde + 1;
        if (kanEindigen_[static_cast<unsigned char>(regels[laatste])]) {
            return Regel{begin, plek};
        }
    }
    return std::nullopt;
}

std::size_t BijnaZoeker::zoekBegin(std::string_view regels, std::size_t vanaf) const {
    if (beginnen_.empty()) {
        return std::string_view::npos;
    }
    for (std::size_t plek = vanaf; plek < regels.size(); plek += Bytevak::size()) {
        const bool isRand = plek == 0 || regels.size() - plek <= Bytevak::size();
        const auto gevonden = isRand ? zoekBeginnenAanRand(regels, plek, beginnen_)
                                     : zoekBeginnen(regels.data() + plek, beginnen_);
        if (simd::any_of(gevonden)) {
            return plek + static_cast<std::size_t>(simd::find_first_set(gevonden));
        }
    }
    return std::string_view::npos;
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
