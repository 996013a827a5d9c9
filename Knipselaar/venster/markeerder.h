#pragma once

// Laat bij één bestand in de linker editor zien wat een knipbeurt zou weghalen en wat er aan de markers niet
// klopt, en in de rechter wat er geknipt is en of dat nog bij het origineel hoort. Werkt in kleine stappen
// als het venster niets te doen heeft, zodat typen er nooit op wacht. De hele tekst wordt ontleed en krijgt
// bijschriften; achtergronden krijgt wat te zien is, met een ruime rand eromheen. De editors blijven van het
// venster.

#include <wx/string.h>

#include <optional>
#include <string>
#include <vector>

#include "Knipselaar/kern/herkomst.h"
#include "Knipselaar/kern/knipper.h"
#include "Knipselaar/kern/ontleding.h"

class VolgEditor;
class wxStyledTextCtrl;
namespace merken {
class Bijschrijver;
}

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

    /// Haalt alles uit de linker editor; er komt een andere tekst in.
    void wisOrigineel();

    /// Zet een nieuw resultaat in de rechter editor, in plaats van wat er stond, en merkt het.
    void zetResultaat(const kern::Geknipt& geknipt, kern::Herkomst herkomst);

    /// Haalt alles uit de rechter editor, en vergeet waar het resultaat vandaan kwam.
    void wisResultaat();

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

    /// Een reeks regels, vanaf 0; de laatste telt niet mee.
    struct Regels {
        int begin = 0;
        int einde = 0;
    };

    enum class Stap { klaar, ontleden, bijschrijven };

    bool isVeranderd(const Stand& stand) const;
    void begin(const Stand& stand);
    void ontleedVerder();
    void sluitOntledingAf();
    void meldVeroudering();
    void schrijfVerderBij();
    void schrijfBij(int regel, merken::Bijschrijver& bijschrijver);
    static std::optional<Regels> kiesRegels(wxStyledTextCtrl& editor, std::optional<Regels>& gemerkt);
    void merkOrigineel(const Regels& regels);
    void merkAangepast(const Regels& regels);

    VolgEditor& origineel_;
    VolgEditor& aangepast_;
    std::optional<Gezien> gezien_;
    std::optional<kern::Herkomst> herkomst_;
    int breedteOrigineel_ = 0;
    int breedteAangepast_ = 0;

    Stap stap_ = Stap::klaar;

    // Het ontleden.
    std::string tekst_;
    std::optional<kern::KnipMal> mal_;
    std::optional<kern::Ontleder> ontleder_;
    std::size_t ontleedTot_ = 0;

    // Wat eruit kwam, en hoever dat te zien is.
    std::vector<kern::Blok> blokken_;
    std::vector<kern::Bevinding> bevindingen_;
    bool heeftBijschriften_ = false;          ///< onder een regel kan iets staan
    int bijgeschreven_ = 0;                   ///< de volgende regel die een bijschrift kan krijgen
    std::size_t bevinding_ = 0;               ///< de eerste bevinding die niet voor die regel ligt
    std::optional<Regels> gemerktOrigineel_;  ///< deze regels hebben hun achtergrond
    std::optional<Regels> gemerktAangepast_;
};
