#pragma once

// Knipt hele regels: houdt de markers ertegen, laat het filter beslissen en geeft door wat blijft. Weet niet
// waar de regels vandaan komen of heen gaan; het venster en de bestandsvariant staan er allebei op.

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "Knipselaar/kern/knipFilter.h"
#include "Knipselaar/kern/knipMal.h"

namespace kern {

class Knipper {
  public:
    /// Krijgt een stuk dat blijft, en of het er al stond (houden) of de vervangtekst is (vervangen).
    using Uitvoer = std::function<void(std::string_view, Lot)>;

    /// @param mal               moet langer leven.
    /// @param achterVervanging  wat na elke vervangtekst geschreven wordt.
    Knipper(const KnipMal& mal, std::string_view achterVervanging);

    /// Knipt de volgende regels; het blok waarin de vorige aanroep eindigde loopt door.
    /// @param regels  hele regels in UTF-8, elk gesloten door "\n". De allerlaatste regel mag zonder; zij
    ///                draagt dan nooit een marker.
    /// @param uit     krijgt op volgorde de stukken die blijven; de bytes zijn alleen tijdens de aanroep
    ///                geldig.
    void knip(std::string_view regels, const Uitvoer& uit);

    /// Knipt een allerlaatste regel zonder tekst en zonder regeleinde. Zij draagt nooit een marker, maar kan
    /// wel de eerste binnenregel van een blok zijn.
    void knipLegeRegel(const Uitvoer& uit);

  private:
    const KnipMal& mal_;
    std::string vervanging_;
    KnipFilter filter_;
};

/// Een geknipte tekst, en waar daarin vervangteksten staan, in bytes en op volgorde.
struct Geknipt {
    std::string tekst;
    std::vector<Regel> vervangingen;
};

/// Knipt een tekst uit een editor: regels houden hun eigen regeleinde, de vervangtekst krijgt er geen bij. De
/// lege regel achter een laatste regeleinde telt mee, zoals de editor haar telt.
/// @param tekst  de hele tekst in UTF-8 met "\n" als regeleinde.
Geknipt knipTekst(std::string_view tekst, const KnipMal& mal);
std::string knipTekst(std::string_view tekst, const KnipTeksten& teksten);

}  // namespace kern
