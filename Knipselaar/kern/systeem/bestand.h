#pragma once

// Gewone bestanden openen, lezen en schrijven. Openen wacht nooit op een ander, ook niet bij een pijp of een
// apparaat; die gaan niet open.
//
// Een kanaal is het nummer waaronder de C-bibliotheek een open bestand kent. Ook de toolkit neemt het aan
// (wxFile, wxFileInputStream).

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include "Knipselaar/kern/systeem/kenmerken.h"

namespace kern {

inline constexpr int invoerkanaal = 0;
inline constexpr int uitvoerkanaal = 1;
inline constexpr int foutkanaal = 2;

/// Een kanaal dat zichzelf sluit.
class Bestand {
  public:
    Bestand() = default;
    /// @param kanaal  gaat naar dit object; negatief voor geen.
    explicit Bestand(int kanaal) : kanaal_(kanaal) {}
    Bestand(const Bestand&) = delete;
    Bestand& operator=(const Bestand&) = delete;
    Bestand(Bestand&& ander) noexcept : kanaal_(ander.geefUitHanden()) {}
    Bestand& operator=(Bestand&& ander) noexcept {
        std::swap(kanaal_, ander.kanaal_);
        return *this;
    }
    ~Bestand();

    bool isOpen() const { return kanaal_ >= 0; }

    /// Blijft van dit object; negatief als het niet open is.
    int geefKanaal() const { return kanaal_; }

    /// De aanroeper sluit het voortaan zelf.
    int geefUitHanden() { return std::exchange(kanaal_, geen); }

    /// Sluit een open bestand. Ook na een fout is het niet meer open; wat er geschreven was kan dan verloren
    /// zijn.
    std::error_code sluit();

  private:
    static constexpr int geen = -1;

    int kanaal_ = geen;
};

/// Een bestand dat openging, of waarom niet.
struct Opening {
    Bestand bestand;
    /// Van het open bestand; ging het niet open, dan is alleen de soort te gebruiken, als zij bekend is.
    Kenmerken kenmerken;
    /// Leeg als het bestand open is, en ook als openen wel had gekund maar het geen gewoon bestand is.
    std::error_code fout;

    /// Leeg als het bestand open is, en anders nooit.
    std::error_code keur() const {
        return bestand.isOpen() || fout ? fout : std::make_error_code(std::errc::invalid_argument);
    }
};

/// Opent een gewoon bestand om te lezen. Een link wordt gevolgd.
Opening openBron(const std::string& pad);

/// Opent wat de gebruiker zelf noemt om te lezen, ook een pijp, en wacht zo nodig op wie haar vult. Alleen
/// als het geen gewoon bestand hoeft te zijn.
Opening openStroom(const std::string& pad);

/// Opent een gewoon bestand om te schrijven en maakt het leeg, of maakt het. Een link wordt gevolgd, behalve
/// een die nergens heen wijst: dan zou er elders een bestand ontstaan. Die gaat niet open en is van de soort
/// link. Wat geen gewoon bestand is blijft zoals het is.
Opening openDoel(const std::string& pad);

/// Leest hoogstens zoveel bytes als er plaats is, vanaf waar het kanaal staat. Nul is het einde. Een signaal
/// onderbreekt het lezen alleen als er om stoppen gevraagd is (zie onderbreking.h).
struct Gelezen {
    std::size_t aantal = 0;
    std::error_code fout;
};
Gelezen lees(int kanaal, std::span<char> plaats);

/// Schrijft alles. Stopt als er om stoppen gevraagd is; dan, en na elke andere fout, kan er een deel
/// geschreven zijn.
std::error_code schrijf(int kanaal, std::string_view bytes);

/// Of een kanaal van een terminal is, waar een mens meekijkt.
bool isTerminal(int kanaal);

}  // namespace kern
