#pragma once

// Geheugen voor de inhoud van een bestand. Anders dan een string maakt het de bytes niet eerst nul: ze worden
// toch meteen gelezen, en bij een groot bestand kost dat evenveel als het knippen zelf.

#include <cstddef>
#include <memory>
#include <span>
#include <string_view>

#include "Knipselaar/kern/systeem/geheugen.h"

namespace kern {

class Bytes {
  public:
    Bytes() = default;

    /// Niets, met plaats voor de inhoud zolang die erin past. Zij blijft van de aanroeper en moet langer
    /// leven.
    static Bytes leen(std::span<char> plaats) {
        Bytes bytes;
        bytes.bytes_ = Eigendom(plaats.data(), Vrijgever{.geleend = true});
        bytes.ruimte_ = plaats.size();
        return bytes;
    }

    /// Een kopie.
    explicit Bytes(std::string_view bytes);

    char* geefBegin() { return bytes_.get(); }
    std::string_view geef() const { return {bytes_.get(), lengte_}; }
    std::size_t geefRuimte() const { return ruimte_; }

    /// Maakt plaats voor minstens zoveel bytes; wat er staat blijft. Gooit std::bad_alloc.
    void maakRuimte(std::size_t ruimte);

    /// Maakt plaats voor minstens zoveel bytes achter wat er staat, en zoveel meer dat steeds bijzetten niet
    /// steeds verhuizen is. Gooit std::bad_alloc.
    void maakPlaats(std::size_t erbij);

    /// Zegt hoeveel bytes gelden, hoogstens zoveel als er ruimte is.
    void zetLengte(std::size_t lengte) { lengte_ = lengte; }

    void voegToe(char byte);
    void voegToe(std::string_view bytes);

  private:
    struct Vrijgever {
        bool geleend;  ///< nee, als er niets over gezegd is

        void operator()(char* bytes) const {
            if (!geleend) {
                geefGeheugenTerug(bytes);
            }
        }
    };

    using Eigendom = std::unique_ptr<char, Vrijgever>;

    Eigendom bytes_;
    std::size_t lengte_ = 0;
    std::size_t ruimte_ = 0;
};

}  // namespace kern
