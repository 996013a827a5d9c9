#pragma once

// Wat het systeem van een bestand of een directory weet.
//
// Een pad is overal in deze directory een std::string: op POSIX de bytes van het bestandssysteem, in welke
// codering ook, op Windows UTF-8. Wat misgaat is een std::error_code, leeg als het lukte; noemReden maakt er
// woorden van.

#include <cstdint>
#include <filesystem>
#include <string>
#include <system_error>

namespace kern {

enum class Bestandssoort : std::uint8_t {
    onbekend,  ///< er is niets, of het mag niet bekeken worden
    bestand,   ///< een gewoon bestand
    directory,
    link,   ///< alleen als de naam zelf bekeken wordt, en niet waar zij heen wijst
    anders  ///< een pijp, een apparaat, een socket
};

struct Kenmerken {
    Bestandssoort soort = Bestandssoort::onbekend;
    /// Samen anders voor elk bestand en elke directory die er tegelijk zijn.
    std::uint64_t schijf = 0;
    std::uint64_t nummer = 0;
    std::uint64_t lengte = 0;
    /// De laatste verandering van de inhoud, in seconden en nanoseconden na een vast moment van het systeem.
    std::int64_t seconden = 0;
    std::int64_t nanoseconden = 0;
    /// Zo veel als het systeem ervan kent.
    std::filesystem::perms rechten = std::filesystem::perms::none;
    /// Nummers van eigenaar en groep; nul waar het systeem die niet als nummer kent.
    std::uint32_t eigenaar = 0;
    std::uint32_t groep = 0;

    bool isZelfdePlaats(const Kenmerken& ander) const {
        return schijf == ander.schijf && nummer == ander.nummer;
    }

    /// Of het nog hetzelfde bestand is, en niemand er intussen in schreef.
    bool isOngewijzigd(const Kenmerken& eerder) const;
};

/// Van wat er op een pad staat; een link wordt gevolgd. Mislukt ook bij een link die nergens heen wijst.
std::error_code leesKenmerken(const std::string& pad, Kenmerken& uit);

/// Van de naam zelf; van een link dus die van de link.
std::error_code leesEigenKenmerken(const std::string& pad, Kenmerken& uit);

/// Van een open bestand.
/// @param kanaal  zie bestand.h.
std::error_code leesKenmerken(int kanaal, Kenmerken& uit);

}  // namespace kern
