#pragma once

// Het verslag van een run, als tekst en als JSON. Wat hier uit komt is voor de standaarduitvoer.

#include <cstddef>
#include <string>
#include <string_view>

#include "KnipselaarCli/bewijs.h"
#include "KnipselaarCli/fout.h"
#include "KnipselaarCli/proef.h"
#include "KnipselaarCli/werk.h"

namespace cli {

struct Tellingen {
    std::size_t geknipt = 0;
    std::size_t ongewijzigd = 0;
    std::size_t overgenomen = 0;
    std::size_t gelaten = 0;
    std::size_t tegengehouden = 0;
    std::size_t mislukt = 0;
    std::size_t blokken = 0;   ///< geknipt
    std::size_t gevonden = 0;  ///< blokken, ook in een bestand dat tegengehouden is
    std::size_t fouten = 0;
    std::size_t waarschuwingen = 0;
};

class Verslag {
  public:
    explicit Verslag(const Opties& opties) : opties_(opties) {}

    /// Neemt een taak op. Geeft wat er meteen over te schrijven is: bij --droog een regel, bij --verschil het
    /// verschil, en anders niets.
    std::string neem(const Taak& taak, const Uitslag& uitslag);

    void neem(const Nalezing& nalezing);
    void neem(const Proef& proef);

    /// Neemt op wat er over de run als geheel te melden was.
    void neemOpmerking(const std::string& opmerking, Ernst ernst);

    const Tellingen& geefTellingen() const { return tellingen_; }

    /// Hoe de run tot nu toe afloopt.
    Afloop geefAfloop() const;

    /// Wat er aan het einde te schrijven is: de tellingen, of het hele verslag in JSON. Mag leeg zijn.
    std::string sluitAf(Afloop afloop) const;

  private:
    std::string maakTellingen(Afloop afloop) const;
    std::string maakJson(Afloop afloop) const;
    void neemInJson(const Taak& taak, const Uitslag& uitslag);

    const Opties& opties_;
    Tellingen tellingen_;
    std::size_t vondsten_ = 0;
    std::size_t proeven_ = 0;
    std::size_t mislukteProeven_ = 0;
    bool opmerkingIsFout_ = false;
    std::string jsonBestanden_;
    std::string jsonProeven_;
    std::string jsonBewijs_;
    std::string jsonOpmerkingen_;
};

/// Een string in JSON. Een byte die geen UTF-8 is wordt het losse surrogaat U+DC80 plus zijn lage zeven bits,
/// zoals Python ("surrogateescape") het ook doet; zo is elke bestandsnaam terug te vinden.
std::string naarJson(std::string_view tekst);

}  // namespace cli
