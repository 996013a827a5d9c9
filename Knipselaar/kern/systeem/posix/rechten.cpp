#include "Knipselaar/kern/systeem/posix/rechten.h"

#include <sys/stat.h>
#include <unistd.h>

#include "Knipselaar/kern/systeem/posix/fout.h"

namespace kern::posix {

std::error_code neemEigenaarOver(int kanaal, const Kenmerken& nu, const Kenmerken& van) {
    const bool alGelijk = nu.eigenaar == van.eigenaar && nu.groep == van.groep;
    return alGelijk ? std::error_code() : keur(fchown(kanaal, van.eigenaar, van.groep));
}

std::error_code zetRechten(int kanaal, std::filesystem::perms rechten) {
    return keur(fchmod(kanaal, static_cast<mode_t>(rechten)));
}

}  // namespace kern::posix
