#pragma once

// Een run waar een test iets tussendoor te zien of te doen heeft. Het programma staat dan stil en gaat alleen
// waar de test het laat gaan: hoe snel de machine is doet er niet toe.

#include <filesystem>

#include "tests/hulp/kindproces.h"

class LangeRun {
  public:
    /// Maakt de bestanden om te knippen.
    /// @param doel  waar het programma ze geknipt neerzet.
    LangeRun(const std::filesystem::path& bron, std::filesystem::path doel);

    /// Wacht tot de run aan de gang is en zet het programma stil.
    /// @param programma  blijft van de aanroeper, en leeft langer.
    void houdStil(const hulp::Kindproces& programma);

    /// Laat het programma een paar bestanden verder gaan.
    void gaEvenDoor() const;

    /// Laat het programma weer gaan zoals het wil.
    void gaDoor() const;

    /// Hoeveel bestanden er geknipt zijn en er nog staan.
    long tel() const;

    static constexpr long bestanden = 6000;

  private:
    std::filesystem::path doel_;
    const hulp::Kindproces* programma_ = nullptr;
};
