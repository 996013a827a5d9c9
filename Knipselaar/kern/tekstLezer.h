#pragma once

// Leest een tekst in blokken en geeft hele regels in UTF-8, elk gesloten door "\n". Wat er uitkomt is regel
// voor regel wat de tekststroom van de toolkit met wxConvAuto geeft, op de plaatsen na waar die bytes laat
// verdwijnen of nooit ophoudt (zie RegelOmzetter en BreedOmzetter). Houdt hoogstens één regel en een blok
// vast. De invoer blijft van de aanroeper en moet langer leven.

#include <wx/stream.h>

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "Knipselaar/kern/breedOmzetter.h"
#include "Knipselaar/kern/bytes.h"
#include "Knipselaar/kern/regelOmzetter.h"

namespace kern {

class TekstLezer {
  public:
    /// Bytes in het eerste blok.
    static constexpr std::size_t eersteBlok = 32 * 1024;

    explicit TekstLezer(wxInputStream& invoer);
    TekstLezer(const TekstLezer&) = delete;
    TekstLezer& operator=(const TekstLezer&) = delete;
    ~TekstLezer() = default;

    /// De volgende hele regels; leeg aan het einde van de tekst. Geldig tot de volgende aanroep. Eindigt
    /// altijd, ook na een leesfout: dan eindigt de tekst daar.
    std::string_view leesRegels();

    /// Of de tekst tot haar einde gelezen is, zonder leesfout. Alleen zinvol na de laatste regel.
    bool isHeelGelezen() const { return heelGelezen_; }

  private:
    void vulAan();
    void beginTekst(std::string_view begin);
    void voegRuwToe(std::string_view ruw);
    void sluitAf();
    void voegBreedToe(std::string_view ruw);

    wxInputStream& invoer_;
    // De meeste bronbestanden passen in het eerste blok. In het object zelf kost het niets; van de heap zou
    // een reeks bestanden het telkens nemen en teruggeven.
    std::array<char, eersteBlok> begin_;
    Bytes tekst_ = Bytes::leen(begin_);
    std::size_t blok_ = eersteBlok;  ///< bytes die de volgende keer gevraagd worden
    std::size_t gegeven_ = 0;        ///< bytes van tekst_ die de aanroeper al heeft
    RegelOmzetter omzetter_;
    /// Of het volgende blok niet achter de tekst komt maar in ruw_: aan het vorige was iets om te zetten, en
    /// dan meestal ook aan dit.
    bool naast_ = false;
    Bytes ruw_;
    std::optional<BreedOmzetter> breed_;  ///< als de tekst UTF-16 of UTF-32 is
    Bytes smal_;                          ///< wat die ervan maakte
    bool begonnen_ = false;
    bool klaar_ = false;
    bool heelGelezen_ = false;
};

}  // namespace kern
