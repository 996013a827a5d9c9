#include "Knipselaar/kern/markerMasker.h"

#include <algorithm>

namespace kern {

namespace {

std::vector<Zoeker> splitsOpJokers(const wxString& marker) {
    std::vector<Zoeker> stukken;
    const std::string tekst = marker.utf8_string();
    std::size_t begin = 0;
    while ((begin = tekst.find_first_not_of("*?", begin)) != std::string::npos) {
        const std::size_t eind = tekst.find_first_of("*?", begin);
        stukken.emplace_back(tekst.substr(begin, eind - begin));
        begin = eind == std::string::npos ? tekst.size() : eind;
    }
    return stukken;
}

}  // namespace

MarkerMasker::MarkerMasker(const wxString& marker, Jokers jokers)
    : marker_(marker),
      masker_("*" + marker + "*"),
      stukken_(jokers == Jokers::ja ? splitsOpJokers(marker) : std::vector{Zoeker(marker.utf8_string())}),
      heeftVraagteken_(jokers == Jokers::ja && marker.Contains("?")) {
    const auto langste = std::max_element(
        stukken_.begin(), stukken_.end(),
        [](const Zoeker& a, const Zoeker& b) { return a.geefNaald().size() < b.geefNaald().size(); });
    if (langste != stukken_.end()) {
        anker_ = *langste;
    }
}

// Een "?" verandert daar niets aan: hij staat altijd ergens achter de "*" van het masker.
bool MarkerMasker::pastOpElkeRegel() const {
    return geefAnker().empty();
}

// Een regel kan alleen passen als alle stukken er op volgorde in staan. Zonder "?" is dat ook genoeg; met
// "?" beslist de toolkit, die er eigen regels voor heeft (een "?" direct na een "*" telt bijvoorbeeld niet).
bool MarkerMasker::past(std::string_view regel) const {
    return heeftStukken(regel) && pastVerder(regel);
}

std::pair<std::string_view, std::string_view> MarkerMasker::geefOmheen(std::string_view regel) const {
    if (stukken_.empty()) {
        return {};
    }
    const std::string& laatste = stukken_.back().geefNaald();
    return {regel.substr(0, stukken_.front().zoek(regel)),
            regel.substr(regel.rfind(laatste) + laatste.size())};
}

bool MarkerMasker::heeftStukken(std::string_view regel) const {
    for (const Zoeker& stuk : stukken_) {
        const std::size_t plek = stuk.zoek(regel);
        if (plek == std::string_view::npos) {
            return false;
        }
        regel.remove_prefix(plek + stuk.geefNaald().size());
    }
    return true;
}

bool MarkerMasker::pastVerder(std::string_view regel) const {
    // De toolkit vergelijkt tot aan een NUL en komt dan nooit aan het einde van de regel.
    if (regel.find('\0') != std::string_view::npos) {
        return false;
    }
    return !heeftVraagteken_ || wxString::FromUTF8(regel.data(), regel.size()).Matches(masker_);
}

std::optional<Regel> MarkerMasker::zoekRegel(std::string_view regels, std::size_t vanaf) const {
    std::size_t begin = vanaf;
    while (begin < regels.size()) {
        // Van anker naar anker springen in plaats van regel voor regel vergelijken: de meeste regels van
        // een bestand dragen het anker niet en worden zo alleen door de zoeker gezien.
        const std::size_t sprong = anker_.zoek(regels.substr(begin));
        if (sprong == std::string_view::npos) {
            return std::nullopt;
        }
        const std::size_t anker = begin + sprong;
        const std::size_t vorigeEinde =
            anker == begin ? std::string_view::npos : regels.rfind('\n', anker - 1);
        if (vorigeEinde != std::string_view::npos && vorigeEinde >= begin) {
            begin = vorigeEinde + 1;
        }
        const std::size_t einde = regels.find('\n', anker);
        if (einde == std::string_view::npos) {
            return std::nullopt;
        }
        const std::string_view regel = regels.substr(begin, einde - begin);
        // Een anker met een regeleinde erin loopt door op de volgende regel.
        const bool ankerGenoeg = stukken_.size() <= 1 && einde - anker >= geefAnker().size();
        if ((ankerGenoeg || heeftStukken(regel)) && pastVerder(regel)) {
            return Regel{begin, einde + 1};
        }
        begin = einde + 1;
    }
    return std::nullopt;
}

}  // namespace kern
