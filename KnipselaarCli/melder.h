#pragma once

// Wat de gebruiker te zien krijgt: meldingen op het foutkanaal, uitkomsten op de standaarduitvoer, en op een
// terminal de voortgang. Alleen voor de draad die het verslag doet.

#include <chrono>
#include <string>
#include <string_view>

#include "KnipselaarCli/ontleding.h"

namespace cli {

class Melder {
  public:
    /// @param stil  alleen fouten.
    explicit Melder(bool stil);

    /// "bestand:regel: fout: tekst", de vorm die editors en vertalers kennen; zonder regel als die er niet
    /// is.
    void meld(std::string_view pad, const Melding& melding);

    /// Iets over de run als geheel, of een storing die zelf zegt waar.
    void meldRun(std::string_view tekst, Ernst ernst);

    /// Wat een ander programma schreef, zoals het is, op het foutkanaal.
    void toonUitvoer(std::string_view uitvoer);

    /// Een uitkomst. Gooit Fout als de standaarduitvoer haar niet wil.
    void schrijf(std::string_view tekst);

    /// Zegt op een terminal hoe ver het is en hoe lang het nog duurt.
    void meldVoortgang(std::size_t gedaan, std::size_t totaal);

    /// Haalt de voortgang weg.
    void wisVoortgang();

  private:
    using Klok = std::chrono::steady_clock;

    void schrijfMelding(std::string_view voor, Ernst ernst, std::string_view tekst);

    bool stil_;
    bool kleur_;
    bool voortgang_;
    bool zichtbaar_ = false;
    Klok::time_point begin_ = Klok::now();
    Klok::time_point getoond_ = begin_;
};

}  // namespace cli
