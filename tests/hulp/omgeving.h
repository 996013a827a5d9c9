#pragma once

// De omgeving van één testrun: een eigen thuisdirectory, een eigen tijdelijke directory en een eigen
// beeldscherm. Tests lopen daardoor naast elkaar en komen nooit aan de instellingen van de gebruiker.

#include <sys/types.h>

#include <filesystem>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

#include "tests/hulp/bestanden.h"

namespace hulp {

/// Een proces dat met het object ophoudt te bestaan.
class Kindproces {
  public:
    /// Start een programma uit PATH; het sterft ook als het testproces sterft. Uitvoer en fouten komen
    /// achter wat er al in deze bestanden staat.
    Kindproces(const std::vector<std::string>& opdracht, const std::filesystem::path& uitvoer,
               const std::filesystem::path& fouten);
    Kindproces(const Kindproces&) = delete;
    Kindproces& operator=(const Kindproces&) = delete;
    ~Kindproces();

    pid_t nummer() const { return nummer_; }

    /// Of het proces opgehouden is; de status is dan te vragen.
    bool isAf();

    /// De afloopstatus: de waarde van exit, of 128 + het signaal. Alleen geldig als isAf.
    int status() const;

    void stuur(int signaal) const;

  private:
    pid_t nummer_;
    int ruweStatus_ = 0;
    bool af_ = false;
};

/// Wacht op een voorwaarde. False als de grens voorbij is en het nog steeds niet zo is.
template <typename Voorwaarde>
bool wachtTot(Voorwaarde&& voorwaarde, int hoogstensMs = 90000);

/// Wat de vensters van een test toont.
enum class Beeldscherm {
    kaal,           ///< een X-server
    vensterbeheer,  ///< een X-server met een vensterbeheerder, voor tests die met toetsen en muis werken
    wayland,        ///< een beeldscherm van Wayland; het begint pas met startWayland
};

/// De naam, zodat GoogleTest bij een test zegt op welk beeldscherm hij draait.
void PrintTo(Beeldscherm beeldscherm, std::ostream* uit);

/// Maakt van een proces met beeldscherm een test: zet onder meer HOME, TMPDIR en DISPLAY om. Eén tegelijk.
class Omgeving {
  public:
    explicit Omgeving(Beeldscherm beeldscherm);
    Omgeving(const Omgeving&) = delete;
    Omgeving& operator=(const Omgeving&) = delete;
    ~Omgeving();

    /// Start een beeldscherm van Wayland, nog zonder toetsenbord. Is het er al, dan blijft het bij dat.
    /// @param als  de opdracht waarmee een gewone gebruiker het start: root wordt geweigerd. Leeg als dat
    ///             niet hoeft.
    void startWayland(const std::vector<std::string>& als);

    /// Start een bus waarop een schermlezer meeluistert, en laat programma's die daarna starten eraan
    /// meedoen. Is die bus er al, dan blijft het bij die.
    /// @param als  de opdracht waarmee een ander haar start, dan is zij van hem; leeg als dat niet hoeft.
    void startSchermlezerbus(std::vector<std::string> als = {});

    std::filesystem::path thuis() const { return map_ / "thuis"; }

    /// De opslag van het programma in deze thuisdirectory.
    std::filesystem::path opslag() const { return thuis() / ".Knipselaar"; }

    /// Een directory die de test naar eigen inzicht vult.
    std::filesystem::path werk() const { return map_ / "werk"; }

  private:
    /// Start een hulpproces dat met één regel meldt waar het te vinden is; geeft die regel.
    std::string startBediende(const std::vector<std::string>& opdracht);
    void startX(bool metVensterbeheer);

    TijdelijkeMap map_;
    std::vector<std::unique_ptr<Kindproces>> bedienden_;
};

/// Eén keer kort wachten tussen twee blikken op een voorwaarde van buiten dit proces. Na een blik die lang
/// duurde langer: wie vaak kijkt, houdt op wat hij wil zien.
/// @param blikMs  hoe lang de vorige blik duurde.
void wachtEven(long blikMs);
long klokMs();

/// Hoeveel keer langer dan anders alles duurt: wat er wil draaien, gedeeld door de kernen.
int drukte();

template <typename Voorwaarde>
bool wachtTot(Voorwaarde&& voorwaarde, int hoogstensMs) {
    const long einde = klokMs() + hoogstensMs;
    for (long begin = klokMs(); !voorwaarde(); begin = klokMs()) {
        const long nu = klokMs();
        if (nu > einde) {
            return false;
        }
        wachtEven(nu - begin);
    }
    return true;
}

}  // namespace hulp
