#pragma once

// Waar de blokken van een tekst liggen, en wat er aan de markers niet klopt. Wat een blok is zegt het
// KnipFilter, hetzelfde dat bij het knippen beslist; met meer paren eindigt een blok bij de eindmarker van
// zijn eigen paar.

#include <cstddef>
#include <functional>
#include <limits>
#include <optional>
#include <string_view>
#include <vector>

#include "Knipselaar/kern/knipFilter.h"
#include "Knipselaar/kern/markerReeks.h"

namespace kern {

/// Een afgesloten blok. De plaatsen zijn bytes in de hele tekst, de nummers regels vanaf 1.
struct Blok {
    Regel begin;  ///< de regel met de beginmarker
    Regel eind;   ///< de regel met de eindmarker
    std::size_t beginNummer;
    std::size_t eindNummer;
    std::size_t paar = 0;  ///< het nummer van zijn paar in de reeks

    /// Of er niets in staat; er komt dan ook geen vervangtekst.
    bool isLeeg() const { return begin.eind == eind.begin; }
};

/// Wat er aan een regel op te merken is.
enum class Soort {
    geenBlok,               ///< de tekst heeft geen enkel blok; gemeld bij de eerste regel
    beginOpElkeRegel,       ///< de beginmarker is leeg; gemeld bij de eerste regel
    eindOpElkeRegel,        ///< de eindmarker is leeg; gemeld bij de eerste regel
    leegBlok,               ///< er komt geen vervangtekst
    zonderEind,             ///< het blok dat hier begint eindigt nergens
    zonderBegin,            ///< een eindmarker buiten een blok blijft staan
    beginInBlok,            ///< een beginmarker van hetzelfde paar
    anderBeginInBlok,       ///< een beginmarker van een ander paar
    beginZonderRegeleinde,  ///< een beginmarker op een laatste regel zonder regeleinde telt niet
    eindZonderRegeleinde,   ///< en een eindmarker evenmin
    bijnaBegin,             ///< bijna een beginmarker, maar niet helemaal
    bijnaEind               ///< bijna een eindmarker, maar niet helemaal
};

/// Of de markers hier iets anders doen dan wie ze schreef bedoeld kan hebben; anders is het een waarschuwing.
bool isFout(Soort soort);

struct Bevinding {
    std::size_t regel;  ///< vanaf 1
    Soort soort;
    std::size_t blokBegin = 0;  ///< de regel waar het blok begint waar deze regel in staat; 0 als in geen
    std::size_t blokEind = 0;   ///< en de regel waar het eindigt; 0 als het nergens eindigt

    bool operator==(const Bevinding&) const = default;
};

/// Wat er na afloop over een tekst te zeggen is.
struct Bevindingen {
    std::vector<Bevinding> lijst;     ///< in de volgorde van hun regels
    std::size_t verzwegen = 0;        ///< hoeveel er niet meer in de lijst pasten
    std::size_t verzwegenFouten = 0;  ///< hoeveel daarvan een fout zijn
    std::size_t blokken = 0;          ///< ook een blok dat niet eindigt telt mee
    std::size_t open = 0;             ///< de regel waar een blok begint dat niet eindigt, of 0
};

/// Ontleedt een tekst die in stukken komt. Houdt zelf alleen vast wat er te melden is.
class Ontleder {
  public:
    using OpBlok = std::function<void(const Blok&)>;

    static constexpr std::size_t onbeperkt = std::numeric_limits<std::size_t>::max();

    /// @param reeks      moet langer leven en minstens één paar hebben.
    /// @param opBlok     krijgt elk afgesloten blok, op volgorde.
    /// @param hoogstens  zoveel bevindingen worden bewaard; de rest wordt alleen geteld. Een blok dat niet
    ///                   eindigt en wat over de hele tekst gaat komen er altijd bij.
    explicit Ontleder(
        const MarkerReeks& reeks, OpBlok opBlok = [](const Blok&) {}, std::size_t hoogstens = onbeperkt);

    /// De volgende regels.
    /// @param regels  hele regels in UTF-8, elk gesloten door "\n".
    void neem(std::string_view regels);

    /// De laatste regel van een tekst uit een editor, als zij geen regeleinde heeft. Zij draagt nooit een
    /// marker.
    void neemStaart(std::string_view regel);

    /// Sluit de tekst af; daarna komt er niets meer.
    Bevindingen maakAf();

  private:
    void neemRegel(Regel regel, std::string_view inhoud);
    void open(Regel regel, const Markerpaar& paar);
    void sluit(Regel regel);
    void meldBeginInBlok(const Markerpaar& paar);
    void neemEind(std::string_view inhoud);
    void meldBijna(std::string_view inhoud);
    void meldLegeMarkers();
    const Markerpaar* zoekBegin(std::string_view inhoud) const;
    bool isEind(std::string_view inhoud) const;
    void meld(std::size_t regel, Soort soort);
    void telTot(std::size_t plek);

    const MarkerReeks& reeks_;
    OpBlok opBlok_;
    std::size_t hoogstens_;
    KnipFilter filter_;
    Bevindingen uitslag_;

    // Het open blok.
    Regel begin_{};
    std::size_t beginNummer_ = 0;
    const Markerpaar* paar_ = nullptr;
    std::vector<const Markerpaar*> binnen_;  ///< andere paren die erin begonnen
    std::size_t eersteBinnen_ = 0;           ///< de eerste bevinding die erin ligt

    std::string_view stuk_;  ///< de regels die nu genomen worden
    std::size_t basis_ = 0;  ///< waar het stuk in de hele tekst begint
    std::size_t geteldTot_ = 0;
    std::size_t nummer_ = 1;  ///< van de regel die op geteldTot_ begint
};

}  // namespace kern
