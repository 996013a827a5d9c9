#pragma once

// Laat bij één bestand in de linker editor zien wat een knipbeurt zou weghalen en wat er aan de markers niet
// klopt, en in de rechter wat er geknipt is en of dat nog bij het origineel hoort. Werkt in kleine stappen
// als het venster niets te doen heeft, zodat typen er nooit op wacht. De editors blijven van het venster.

#include <wx/string.h>

#include <optional>
#include <string>
#include <vector>

#include "Knipselaar/kern/herkomst.h"
#include "Knipselaar/kern/knipper.h"
#include "Knipselaar/kern/ontleding.h"

class VolgEditor;

class Markeerder {
  public:
    /// Wat de gebruiker nu heeft staan.
    struct Stand {
        wxString pad;  ///< het volledige pad van het geopende bestand
        kern::KnipTeksten teksten;
    };

    /// Maakt de editors klaar om merken te dragen.
    Markeerder(VolgEditor& origineel, VolgEditor& aangepast);

    /// Zet een stap, als er iets te doen is. Geeft of er daarna nog meer te doen is.
    bool werkBij(const Stand& stand);

    /// Merkt een nieuw resultaat, dat zojuist in de rechter editor gezet is.
    void merkResultaat(const kern::Geknipt& geknipt, kern::Herkomst herkomst);

    /// Haalt alle merken en bijschriften uit beide editors, en vergeet waar het resultaat vandaan kwam.
    void vergeet();

    /// Na een kleuring, die de stijlen van de bijschriften wist.
    void herstelStijlen();

    /// Breekt de bijschriften opnieuw af als een editor breder of smaller is dan de vorige keer.
    void volgBreedte();

  private:
    /// Waaraan te zien is dat er iets veranderd is.
    struct Gezien {
        Stand stand;
        long origineel = 0;
        long aangepast = 0;
    };

    enum class Stap { klaar, ontleden, merken };

    bool isVeranderd(const Stand& stand) const;
    void begin(const Stand& stand);
    void ontleedVerder();
    void merkVerder();
    void merkRegel(int regel);
    void sluitMerkenAf();
    void meldVeroudering();

    VolgEditor& origineel_;
    VolgEditor& aangepast_;
    std::optional<Gezien> gezien_;
    std::optional<kern::Herkomst> herkomst_;
    int breedteOrigineel_ = 0;
    int breedteAangepast_ = 0;

    // Het werk waar een stap mee verdergaat.
    Stap stap_ = Stap::klaar;
    std::string tekst_;
    std::optional<kern::KnipMal> mal_;
    std::optional<kern::Ontleder> ontleder_;
    std::size_t ontleedTot_ = 0;
    std::vector<kern::Blok> blokken_;
    std::vector<kern::Bevinding> bevindingen_;
    int regel_ = 0;              ///< de volgende regel die gemerkt wordt
    std::size_t blok_ = 0;       ///< het eerste blok dat niet voor regel_ eindigt
    std::size_t bevinding_ = 0;  ///< de eerste bevinding die niet voor regel_ ligt
    int kleurTot_ = 0;           ///< tot waar de tekst van blokken al gekleurd is
};
