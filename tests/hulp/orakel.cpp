#include "tests/hulp/orakel.h"

#include <wx/mstream.h>
#include <wx/txtstrm.h>
#include <wx/wfstream.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <stdexcept>

using namespace std::string_literals;
using namespace std::string_view_literals;

namespace orakel {

namespace {

/// Het filter, letterlijk zoals het beschreven is, met de vergelijking van de toolkit.
class Filter {
  public:
    Filter(const kern::KnipTeksten& teksten, const wxString& staart, std::function<void(const wxString&)> uit)
        : begin_("*" + teksten.beginMarker + "*" + staart),
          eind_("*" + teksten.eindMarker + "*" + staart),
          vervangtekst_(teksten.vervangtekst),
          uit_(std::move(uit)) {}

    void regel(const wxString& regel) {
        if (!inBlok_) {
            if (regel.Matches(begin_)) {
                inBlok_ = true;
            } else {
                uit_(regel);
            }
        } else {
            if (regel.Matches(eind_)) {
                inBlok_ = false;
                vervangen_ = true;
            } else if (vervangen_) {
                uit_(vervangtekst_);
                vervangen_ = false;
            }
        }
    }

  private:
    wxString begin_;
    wxString eind_;
    wxString vervangtekst_;
    std::function<void(const wxString&)> uit_;
    bool inBlok_ = false;
    bool vervangen_ = true;
};

/// Knipt wat de stroom geeft. Elke regel kost minstens één byte; zijn er meer regels dan dat, dan komt er
/// nooit een einde aan.
std::string knipStroom(wxInputStream& origStroom, std::size_t aantalBytes, const kern::KnipTeksten& teksten) {
    wxTextInputStream origTekst(origStroom, " \t", wxConvAuto());
    wxMemoryOutputStream uitStroom;
    wxTextOutputStream uitTekst(uitStroom, wxEOL_NATIVE, wxConvAuto());
    Filter filter(teksten, "", [&uitTekst](const wxString& tekst) { uitTekst.WriteString(tekst + "\n"); });
    for (std::size_t regels = 0; !origStroom.Eof(); ++regels) {
        if (regels > aantalBytes) {
            throw std::runtime_error("de stromen van de toolkit houden niet op");
        }
        filter.regel(origTekst.ReadLine());
    }
    std::string resultaat(uitStroom.GetSize(), '\0');
    uitStroom.CopyTo(resultaat.data(), resultaat.size());
    return resultaat;
}

/// De breedte van een eenheid als een tekst met een merkteken van UTF-16 of UTF-32 begint, anders 0.
std::size_t geefBreedte(std::string_view inhoud) {
    if (inhoud.starts_with("\xFF\xFE\0\0"sv) || inhoud.starts_with("\0\0\xFE\xFF"sv)) {
        return 4;
    }
    return inhoud.starts_with("\xFF\xFE"sv) || inhoud.starts_with("\xFE\xFF"sv) ? 2 : 0;
}

/// Vervangt in een brede tekst wat geen heel, leesbaar teken is door U+FFFD.
std::string herstelBreed(std::string_view inhoud, std::size_t breedte) {
    const bool grootEerst = !inhoud.starts_with('\xFF');
    const auto leesEenheid = [&](std::size_t plek) {
        std::uint32_t waarde = 0;
        for (std::size_t i = 0; i < breedte; ++i) {
            const std::size_t byte = plek + (grootEerst ? i : breedte - 1 - i);
            waarde = waarde * 256 + static_cast<unsigned char>(inhoud[byte]);
        }
        return waarde;
    };
    const auto isSurrogaat = [&](std::size_t plek, std::uint32_t soort) {
        return breedte == 2 && plek + 2 <= inhoud.size() && (leesEenheid(plek) & 0xFC00U) == soort;
    };
    std::string vervanging = breedte == 2 ? "\xFF\xFD"s : "\0\0\xFF\xFD"s;
    if (!grootEerst) {
        std::reverse(vervanging.begin(), vervanging.end());
    }
    std::string gaaf;
    for (std::size_t plek = 0; plek < inhoud.size();) {
        const bool paar = isSurrogaat(plek, 0xD800) && isSurrogaat(plek + 2, 0xDC00);
        const bool los = !paar && (isSurrogaat(plek, 0xD800) || isSurrogaat(plek, 0xDC00));
        const bool heel = plek + breedte <= inhoud.size();
        const std::size_t lengte = paar ? 4 : breedte;
        gaaf += heel && !los && leesEenheid(plek) <= 0x10FFFF ? inhoud.substr(plek, lengte) : vervanging;
        plek += lengte;
    }
    return gaaf;
}

/// De plaats vanwaar de stromen van een tekst die niet breed is bytes laten verdwijnen; npos als ze alles
/// lezen.
std::size_t vindVerlies(std::string_view inhoud) {
    const bool merkteken = inhoud.starts_with("\xEF\xBB\xBF");
    std::size_t plek = merkteken ? 3 : 0;
    while (plek < inhoud.size()) {
        const auto eerste = static_cast<unsigned char>(inhoud[plek]);
        const std::size_t lengte = eerste < 0x80                     ? 1
                                   : eerste >= 0xC2 && eerste < 0xE0 ? 2
                                   : eerste >= 0xE0 && eerste < 0xF0 ? 3
                                   : eerste >= 0xF0 && eerste < 0xF5 ? 4
                                                                     : 0;
        bool geldig = lengte > 0 && plek + lengte <= inhoud.size();
        for (std::size_t i = 1; geldig && i < lengte; ++i) {
            geldig = (static_cast<unsigned char>(inhoud[plek + i]) & 0xC0U) == 0x80U;
        }
        if (geldig && eerste == 0xF4 && static_cast<unsigned char>(inhoud[plek + 1]) > 0x8F) {
            return plek;  // voorbij U+10FFFF raakt de uitvoerstroom de hele regel kwijt
        }
        if (!geldig) {
            // De toolkit wacht op vier bytes voor zij op ISO 8859-1 overgaat; zijn die er niet meer, dan
            // verdwijnt de rest. Na een UTF-8-merkteken gaat zij nooit over.
            return merkteken || inhoud.size() - plek < 4 ? plek : std::string_view::npos;
        }
        plek += lengte;
    }
    return std::string_view::npos;
}

}  // namespace

std::string knipBestand(const std::filesystem::path& bron, const kern::KnipTeksten& teksten) {
    wxFileInputStream origStroom(wxString::FromUTF8(bron.string()));
    return knipStroom(origStroom, std::filesystem::file_size(bron), teksten);
}

std::string knipInhoud(std::string_view inhoud, const kern::KnipTeksten& teksten) {
    wxMemoryInputStream origStroom(inhoud.data(), inhoud.size());
    return knipStroom(origStroom, inhoud.size(), teksten);
}

std::string knipRegels(std::string_view regels, const kern::KnipTeksten& teksten) {
    std::string resultaat;
    Filter filter(teksten, "",
                  [&resultaat](const wxString& stuk) { resultaat += stuk.utf8_string() + "\n"; });
    for (std::size_t begin = 0; begin < regels.size();) {
        const std::size_t einde = regels.find('\n', begin);
        filter.regel(wxString::FromUTF8(regels.data() + begin, einde - begin));
        begin = einde + 1;
    }
    return resultaat;
}

std::string knipEditorregels(const std::vector<wxString>& regels, const kern::KnipTeksten& teksten) {
    std::string resultaat;
    Filter filter(teksten, "\n", [&resultaat](const wxString& stuk) { resultaat += stuk.utf8_string(); });
    for (const wxString& regel : regels) {
        filter.regel(regel);
    }
    return resultaat;
}

std::string knipTekst(std::string_view tekst, const kern::KnipTeksten& teksten) {
    std::vector<wxString> regels;
    std::size_t begin = 0;
    for (std::size_t einde = tekst.find('\n'); einde != std::string_view::npos;
         einde = tekst.find('\n', begin)) {
        regels.push_back(wxString::FromUTF8(tekst.data() + begin, einde + 1 - begin));
        begin = einde + 1;
    }
    regels.push_back(wxString::FromUTF8(tekst.data() + begin, tekst.size() - begin));
    return knipEditorregels(regels, teksten);
}

std::string herstel(std::string_view inhoud) {
    if (const std::size_t breedte = geefBreedte(inhoud); breedte > 0) {
        return herstelBreed(inhoud, breedte);
    }
    const std::size_t verlies = std::min(vindVerlies(inhoud), inhoud.size());
    const wxString rest(inhoud.data() + verlies, wxConvISO8859_1, inhoud.size() - verlies);
    return std::string(inhoud.substr(0, verlies)) + rest.utf8_string();
}

}  // namespace orakel
