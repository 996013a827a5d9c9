#pragma once

// Een invoerstroom die UTF-16 of UTF-32 doorgeeft en daarbij alles wat niet te lezen is vervangt door U+FFFD:
// een los surrogaat, een waarde voorbij U+10FFFF, een half teken aan het einde. De tekststroom van de toolkit
// komt op zulke plaatsen nooit verder; achter deze stroom komt zij ze niet tegen. De bron blijft van de
// aanroeper en moet langer leven.

#include <wx/stream.h>

#include <optional>
#include <string>
#include <string_view>

namespace kern {

/// Hoe breed de eenheden van een tekst zijn en in welke volgorde hun bytes staan.
struct BreedFormaat {
    unsigned eenheid;  ///< bytes per eenheid: 2 voor UTF-16, 4 voor UTF-32
    bool grootEerst;   ///< de hoogste byte vooraan (big-endian)
};

/// Het formaat dat een merkteken (BOM) aanwijst; niets als de tekst niet met een breed merkteken begint.
/// FF FE 00 00 is UTF-32, ook al zou het UTF-16 met een NUL kunnen zijn: zo beslist de toolkit ook.
std::optional<BreedFormaat> herkenBreedFormaat(std::string_view begin);

class BreedHersteller : public wxInputStream {
  public:
    /// @param bron  staat aan het begin van de tekst; het merkteken gaat gewoon mee.
    BreedHersteller(wxInputStream& bron, BreedFormaat formaat);

  protected:
    size_t OnSysRead(void* buffer, size_t lengte) override;

  private:
    void vulAan();
    void herstel(bool einde);
    std::uint32_t leesEenheid(std::size_t plek) const;
    void schrijfEenheid(std::uint32_t waarde);

    wxInputStream& bron_;
    BreedFormaat formaat_;
    std::string ruw_;   ///< gelezen, nog niet beoordeeld: hoogstens een half teken tussen twee blokken
    std::string goed_;  ///< beoordeeld, nog niet afgehaald vanaf afgehaald_
    std::size_t afgehaald_ = 0;
};

}  // namespace kern
