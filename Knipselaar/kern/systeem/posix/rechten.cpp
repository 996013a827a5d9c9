#include "Knipselaar/kern/systeem/posix/rechten.h"

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <string_view>
#include <vector>

#include "Knipselaar/kern/systeem/posix/fout.h"

namespace kern::posix {

namespace {

using std::filesystem::perms;

/// Zo heet de toegangslijst bij Linux.
constexpr const char* lijstnaam = "system.posix_acl_access";

constexpr uid_t zelfdeEigenaar = static_cast<uid_t>(-1);

/// Alleen root kan iets weggeven; een eigenaar wel aan een groep waar hij in zit.
void neemEigenaarOver(int kanaal, const Kenmerken& nu, const Kenmerken& van, Verlies& verlies) {
    const bool gelijk = nu.eigenaar == van.eigenaar && nu.groep == van.groep;
    if (gelijk || fchown(kanaal, van.eigenaar, van.groep) == 0) {
        return;
    }
    verlies.eigenaar = nu.eigenaar != van.eigenaar;
    verlies.groep = nu.groep != van.groep && fchown(kanaal, zelfdeEigenaar, van.groep) != 0;
}

/// De namen van wat er bij een bestand aangetekend is, elk met een NUL erachter. Bijna altijd is er niets.
std::vector<char> leesNamen(const std::string& pad) {
    const ssize_t lengte = llistxattr(pad.c_str(), nullptr, 0);
    if (lengte <= 0) {
        return {};
    }
    std::vector<char> namen(static_cast<std::size_t>(lengte));
    const ssize_t gelezen = llistxattr(pad.c_str(), namen.data(), namen.size());
    namen.resize(gelezen < 0 ? 0 : static_cast<std::size_t>(gelezen));
    return namen;
}

/// Wat van het systeem zelf is, geldt voor de inhoud die er stond.
bool hoortBijDeGebruiker(std::string_view naam) {
    return naam.starts_with("user.");
}

bool neemOver(int kanaal, const std::string& pad, const char* naam) {
    const ssize_t lengte = lgetxattr(pad.c_str(), naam, nullptr, 0);
    if (lengte < 0) {
        return false;
    }
    std::vector<char> waarde(static_cast<std::size_t>(lengte));
    return lgetxattr(pad.c_str(), naam, waarde.data(), waarde.size()) == lengte &&
           fsetxattr(kanaal, naam, waarde.data(), waarde.size(), 0) == 0;
}

/// Neemt de toegangslijst en de aantekeningen over. Een bestand zonder lijst krijgt er ook geen van de
/// directory waar het in gemaakt is.
void neemAantekeningenOver(int kanaal, const std::string& pad, Verlies& verlies) {
    const std::vector<char> namen = leesNamen(pad);
    bool heeftLijst = false;
    for (auto begin = namen.begin(); begin != namen.end();) {
        const std::string naam(&*begin);
        begin += static_cast<std::ptrdiff_t>(naam.size()) + 1;
        if (naam == lijstnaam) {
            heeftLijst = true;
            // Zonder de groep erbij zou de lijst over een andere groep gaan.
            verlies.toegangslijst = verlies.groep || !neemOver(kanaal, pad, lijstnaam);
        } else if (hoortBijDeGebruiker(naam)) {
            verlies.kenmerken = !neemOver(kanaal, pad, naam.c_str()) || verlies.kenmerken;
        }
    }
    if (!heeftLijst || verlies.toegangslijst) {
        fremovexattr(kanaal, lijstnaam);
    }
}

perms bepaalRechten(perms rechten, const Verlies& verlies) {
    if (verlies.eigenaar || verlies.groep) {
        rechten &= perms::all;
    }
    if (verlies.groep || verlies.toegangslijst) {
        constexpr unsigned vanAnderenNaarGroep = 3;
        const auto anderen = static_cast<unsigned>(rechten & perms::others_all);
        rechten &= ~perms::group_all | static_cast<perms>(anderen << vanAnderenNaarGroep);
    }
    return rechten;
}

}  // namespace

std::error_code zetRechten(int kanaal, perms rechten) {
    return keur(fchmod(kanaal, static_cast<mode_t>(rechten)));
}

std::error_code neemAllesOver(int kanaal, const Kenmerken& nu, const std::string& pad, const Kenmerken& van,
                              Verlies& verlies) {
    // Eerst de eigenaar en dan pas de rechten: die wissel kan rechten afnemen. En eerst de lijst: de rechten
    // van de groep zijn daarin het meeste dat wie er genoemd wordt mag.
    neemEigenaarOver(kanaal, nu, van, verlies);
    neemAantekeningenOver(kanaal, pad, verlies);
    return zetRechten(kanaal, bepaalRechten(van.rechten, verlies));
}

}  // namespace kern::posix
