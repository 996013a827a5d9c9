#pragma once

// De omgeving van een testrun die vensters toont: een eigen beeldscherm, van X of Wayland, en desgewenst een
// bus voor schermlezers.

#include <filesystem>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

#include "tests/hulp/kindproces.h"
#include "tests/hulp/omgeving.h"

namespace hulp {

/// Wat de vensters van een test toont.
enum class Beeldscherm {
    kaal,           ///< een X-server
    vensterbeheer,  ///< een X-server met een vensterbeheerder, voor tests die met toetsen en muis werken
    wayland,        ///< een beeldscherm van Wayland; het begint pas met startWayland
};

/// De naam, zodat GoogleTest bij een test zegt op welk beeldscherm hij draait.
void PrintTo(Beeldscherm beeldscherm, std::ostream* uit);

/// Een omgeving met een eigen beeldscherm, zonder wat er van dat van de gebruiker te merken zou zijn.
class Schermomgeving : public Omgeving {
  public:
    explicit Schermomgeving(Beeldscherm beeldscherm);
    Schermomgeving(const Schermomgeving&) = delete;
    Schermomgeving& operator=(const Schermomgeving&) = delete;
    ~Schermomgeving();

    /// Start een beeldscherm van Wayland, nog zonder toetsenbord. Is het er al, dan blijft het bij dat.
    /// @param als  de opdracht waarmee een gewone gebruiker het start: root wordt geweigerd. Leeg als dat
    ///             niet hoeft.
    void startWayland(const std::vector<std::string>& als);

    /// Start een bus waarop een schermlezer meeluistert, en laat programma's die daarna starten eraan
    /// meedoen. Is die bus er al, dan blijft het bij die.
    /// @param als  de opdracht waarmee een ander haar start, dan is zij van hem; leeg als dat niet hoeft.
    void startSchermlezerbus(std::vector<std::string> als = {});

    /// De opslag van het programma in deze thuisdirectory.
    std::filesystem::path opslag() const { return thuis() / ".Knipselaar"; }

  private:
    /// Start een hulpproces dat met één regel meldt waar het te vinden is; geeft die regel.
    std::string startBediende(const std::vector<std::string>& opdracht);
    void startX(bool metVensterbeheer);

    std::vector<std::unique_ptr<Kindproces>> bedienden_;
};

/// Hoeveel keer langer dan anders alles duurt: wat er wil draaien, gedeeld door de kernen.
int drukte();

}  // namespace hulp
