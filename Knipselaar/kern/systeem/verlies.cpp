#include "Knipselaar/kern/systeem/verlies.h"

#include <vector>

namespace kern {

bool Verlies::isEr() const {
    return eigenaar || groep || toegangslijst || kenmerken;
}

std::string noemVerlies(const Verlies& verlies) {
    std::vector<std::string> namen;
    const auto voegToe = [&namen](bool kwijt, const char* naam) {
        if (kwijt) {
            namen.emplace_back(naam);
        }
    };
    voegToe(verlies.eigenaar, "eigenaar");
    voegToe(verlies.groep, "groep");
    voegToe(verlies.toegangslijst, "toegangslijst");
    voegToe(verlies.kenmerken, "kenmerken");
    std::string tekst;
    for (std::size_t i = 0; i < namen.size(); ++i) {
        tekst += (i == 0 ? "kon " : i + 1 == namen.size() ? " en " : ", ") + namen[i];
    }
    return tekst.empty() ? tekst : tekst + " niet houden";
}

}  // namespace kern
