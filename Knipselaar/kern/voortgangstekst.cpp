#include "Knipselaar/kern/voortgangstekst.h"

#include <utility>

namespace kern {

namespace {
constexpr std::chrono::milliseconds eersteKeer(1000);
constexpr std::chrono::milliseconds tussentijd(400);
}  // namespace

Voortgangstekst::Voortgangstekst(const wxString& begin, std::function<Tijd()> klok)
    : begin_(begin), klok_(std::move(klok)), volgende_(klok_() + eersteKeer) {}

std::optional<wxString> Voortgangstekst::vernieuw(std::size_t gedaan, std::size_t totaal) {
    const Tijd nu = klok_();
    if (nu < volgende_) {
        return std::nullopt;
    }
    volgende_ = nu + tussentijd;
    return wxString::Format("%s\n%zu van %zu bestanden", begin_, gedaan, totaal);
}

}  // namespace kern
