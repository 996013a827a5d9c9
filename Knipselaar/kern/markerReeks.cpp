#include "Knipselaar/kern/markerReeks.h"

#include <algorithm>

namespace kern {

namespace {

/// Een kortere zeef laat te veel door om nog iets te winnen.
constexpr std::size_t kleinsteZeef = 4;

/// Het langste stuk dat in alle ankers voorkomt.
std::string geefGemeenschap(const std::vector<const MarkerMasker*>& maskers) {
    const std::string& eerste = maskers.front()->geefAnker();
    for (std::size_t lengte = eerste.size(); lengte > 0; --lengte) {
        for (std::size_t begin = 0; begin + lengte <= eerste.size(); ++begin) {
            std::string stuk = eerste.substr(begin, lengte);
            if (std::all_of(maskers.begin(), maskers.end(), [&](const MarkerMasker* masker) {
                    return masker->geefAnker().find(stuk) != std::string::npos;
                })) {
                return stuk;
            }
        }
    }
    return {};
}

std::vector<BijnaMarker> maakBijna(const std::vector<const MarkerMasker*>& maskers) {
    std::vector<BijnaMarker> bijna;
    bijna.reserve(maskers.size());
    for (const MarkerMasker* masker : maskers) {
        bijna.emplace_back(masker->geefMarker());
    }
    return bijna;
}

}  // namespace

MarkerReeks::MarkerReeks(std::vector<Markerpaar> paren) : paren_(std::move(paren)) {
    const auto maskers = geefMaskers();
    const std::string gemeenschap = geefGemeenschap(maskers);
    if (gemeenschap.size() >= kleinsteZeef) {
        zeef_.emplace(wxString::FromUTF8(gemeenschap), Jokers::nee);
        if (zeef_->geefAnker().empty()) {
            zeef_.reset();  // de gemeenschap begon of eindigde midden in een teken
        }
    }
    bijna_.emplace(maakBijna(maskers));
}

bool MarkerReeks::draagtMarker(std::string_view regel) const {
    const auto draagt = [regel](const MarkerMasker& masker) {
        return !masker.pastOpElkeRegel() && masker.past(regel);
    };
    return std::any_of(paren_.begin(), paren_.end(),
                       [&draagt](const Markerpaar& paar) { return draagt(paar.begin) || draagt(paar.eind); });
}

std::optional<Gelijkenis> MarkerReeks::lijktOpMarker(std::string_view regel) const {
    const auto marker = bijna_ ? bijna_->geefMarker(regel) : std::nullopt;
    if (!marker) {
        return std::nullopt;
    }
    return *marker % 2 == 0 ? Gelijkenis::begin : Gelijkenis::eind;
}

std::vector<const MarkerMasker*> MarkerReeks::geefMaskers() const {
    std::vector<const MarkerMasker*> maskers;
    for (const Markerpaar& paar : paren_) {
        maskers.insert(maskers.end(), {&paar.begin, &paar.eind});
    }
    return maskers;
}

Markerloper::Markerloper(const MarkerReeks& reeks, std::string_view regels) : reeks_(reeks), regels_(regels) {
    const auto maskers = reeks.zeef_ ? std::vector{&*reeks.zeef_} : reeks.geefMaskers();
    for (const MarkerMasker* masker : maskers) {
        vondsten_.push_back({.masker = masker, .regel = zoek(masker, 0)});
    }
    if (reeks.bijna_) {
        vondsten_.push_back({.masker = nullptr, .regel = zoek(nullptr, 0)});
    }
}

std::optional<Regel> Markerloper::zoek(const MarkerMasker* masker, std::size_t vanaf) const {
    return masker == nullptr ? reeks_.bijna_->zoekRegel(regels_, vanaf) : masker->zoekRegel(regels_, vanaf);
}

std::optional<Regel> Markerloper::volgende() {
    std::optional<Regel> eerste;
    for (const Vondst& vondst : vondsten_) {
        if (vondst.regel && (!eerste || vondst.regel->begin < eerste->begin)) {
            eerste = vondst.regel;
        }
    }
    for (Vondst& vondst : vondsten_) {
        if (vondst.regel && vondst.regel->begin == eerste->begin) {
            vondst.regel = zoek(vondst.masker, eerste->eind);
        }
    }
    return eerste;
}

}  // namespace kern
