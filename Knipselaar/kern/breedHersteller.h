#pragma once

// Een invoerstroom die UTF-16 of UTF-32 doorgeeft en daarbij alles wat niet te lezen is vervangt door U+FFFD:
// een los surrogaat, een waarde voorbij U+10FFFF, een half teken aan het einde. De tekststroom van de toolkit
// komt op zulke plaatsen nooit verder; achter deze stroom komt zij ze niet tegen. De bron blijft van de
// aanroeper en moet langer leven.

#include <wx/stream.h>

#include <cstddef>
#include <cstdint>
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

/// Leest een blok, maar nooit voorbij een leesfout: wat daarna nog uit de bron komt hoeft er niet op aan te
/// sluiten. Geeft het aantal bytes; 0 aan het einde en na een leesfout.
std::size_t leesBlok(wxInputStream& bron, char* bytes, std::size_t aantal);

class BreedHersteller : public wxInputStream {
  public:
    /// @param begin  wat al uit de bron gelezen is, vanaf het merkteken; dat gaat gewoon mee.
    BreedHersteller(std::string_view begin, wxInputStream& bron, BreedFormaat formaat);

    /// Of er om bytes gevraagd is toen er geen meer waren. Eof is daar niet goed voor: de tekststroom zet bij
    /// een NUL zelf een leesfout in de stroom waaruit zij leest.
    bool isUitgeput() const { return uitgeput_; }

  protected:
    size_t OnSysRead(void* buffer, size_t lengte) override;

  private:
    void vulAan();
    void herstel();
    std::uint32_t leesEenheid(std::size_t plek) const;
    void schrijfEenheid(std::uint32_t waarde);

    wxInputStream& bron_;
    BreedFormaat formaat_;
    std::string ruw_;   ///< gelezen, nog niet beoordeeld: hoogstens een half teken tussen twee blokken
    std::string goed_;  ///< beoordeeld, nog niet afgehaald vanaf afgehaald_
    std::size_t afgehaald_ = 0;
    bool einde_ = false;     ///< de bron geeft niets meer
    bool uitgeput_ = false;  ///< en alles is afgehaald
};

}  // namespace kern
