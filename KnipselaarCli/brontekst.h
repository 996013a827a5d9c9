#pragma once

// De inhoud van een bestand in twee gedaanten: de ruwe bytes, en de tekst waarin de kern haar regels ziet
// (UTF-8, elke regel gesloten door "\n"). Van elke plaats waar een regel begint is te zeggen waar die regel
// in de ruwe bytes begint, zodat er geknipt kan worden zonder één byte buiten de blokken aan te raken.

#include <cstddef>
#include <string_view>
#include <vector>

#include "Knipselaar/kern/bytes.h"
#include "KnipselaarCli/codering.h"

namespace cli {

/// Hoe de tekst gemaakt moet worden.
enum class Lezing {
    /// De ruwe bytes mogen zelf als tekst dienen zolang regels en markers van gewone ASCII er hetzelfde in
    /// zijn: een CR voor een LF blijft dan staan, en ISO 8859-1 blijft ISO 8859-1. Bijna elk bestand hoeft zo
    /// maar één keer bekeken te worden.
    zuinig,
    /// Precies de tekst die de kern leest, zonder te onthouden waar zij vandaan komt.
    tekst,
    /// De tekst die de kern leest, en van elke regel waar zij in de ruwe bytes staat.
    volledig,
};

class Brontekst {
  public:
    Brontekst(kern::Bytes inhoud, Lezing lezing);
    Brontekst(const Brontekst&) = delete;
    Brontekst& operator=(const Brontekst&) = delete;
    ~Brontekst() = default;

    /// De bytes van het bestand, met het merkteken.
    std::string_view geefRuw() const { return inhoud_.geef().substr(0, lengte_); }

    /// Hele regels, elk gesloten door "\n". De laatste is leeg als het bestand op een regeleinde eindigde.
    std::string_view geefTekst() const { return direct_ ? inhoud_.geef().substr(merk_) : tekst_.geef(); }

    /// Of de tekst nog de bytes van het bestand zelf is, en de kern er iets anders van zou maken.
    bool isRauw() const { return rauw_; }

    /// Of vaststaat dat elke regel op een LF eindigt. De laatste kan zonder regeleinde zijn.
    bool heeftAlleenLF() const { return alleenLF_; }

    /// De codering van het hele bestand; een bestand met iets dat geen UTF-8 is, is ISO 8859-1.
    Codering geefCodering() const { return codering_; }

    /// Waar de regel die op deze plaats in de tekst begint, in de ruwe bytes begint. Het einde van de tekst
    /// hoort bij het einde van het bestand. Niet na de lezing "tekst".
    std::size_t naarRuw(std::size_t plek) const;

  private:
    void leesSmal(Lezing lezing);
    void leesBreed();
    void zetOm(std::string_view smal);
    void deelIn(std::string_view stuk, std::size_t begin);
    void beginRegel(std::size_t plek, std::size_t ruw);

    kern::Bytes inhoud_;    ///< met één "\n" achter de bytes van het bestand
    std::size_t lengte_;    ///< bytes van het bestand
    std::size_t merk_ = 0;  ///< bytes van het merkteken
    bool direct_ = false;
    bool rauw_ = false;
    bool alleenLF_ = false;
    Codering codering_ = Codering::utf8;
    kern::Bytes tekst_;                ///< als zij niet direct uit de inhoud te nemen is
    std::vector<std::size_t> regels_;  ///< waar elke regel van tekst_ begint
    std::vector<std::size_t> ruwe_;    ///< en waar in de ruwe bytes
};

}  // namespace cli
