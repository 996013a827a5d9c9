#include "KnipselaarCli/opruiming.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>

#include "Knipselaar/kern/systeem/directory.h"
#include "Knipselaar/kern/systeem/paden.h"
#include "KnipselaarCli/boom.h"
#include "KnipselaarCli/fout.h"
#include "KnipselaarCli/links.h"

namespace cli {

namespace fs = std::filesystem;

namespace {

/// Het deel van een geschreven pad voor de laatste naam; leeg als er niets voor staat.
std::string geefOuder(const std::string& pad) {
    return fs::path(pad).parent_path().generic_string();
}

class Opruimer {
  public:
    Opruimer(const std::string& naar, Uitvoersoort soort, const Makers& makers,
             const std::vector<std::string>& bronnen)
        : naar_(naar), echteNaar_(maakEcht(naar)), soort_(soort), makers_(makers) {
        for (const std::string& bron : bronnen) {
            bronnen_.insert(kern::maakSleutel(maakEcht(bron)));
        }
    }

    Opruiming zoek() {
        const LoopWens wens{.recursief = soort_ == Uitvoersoort::boom, .verborgen = true};
        for (const Boomdeel& deel : loopAf(naar_, wens)) {
            neem(deel);
        }
        // Wat weggaat kan de laatste zijn in een directory, en wat daarheen wijst gaat dan ook weg.
        while (ruimLinksOp() > 0 || ruimDirectoriesOp() > 0) {
        }
        return std::move(uit_);
    }

  private:
    void neem(const Boomdeel& deel) {
        const std::string heel = kern::plak(naar_, deel.pad);
        if (makers_(heel) != nullptr) {
            return;
        }
        if (deel.soort == kern::Bestandssoort::link) {
            links_.push_back(deel.pad);
        } else if (deel.soort == kern::Bestandssoort::directory) {
            directories_.push_back(deel.pad);
        } else if (deel.soort == kern::Bestandssoort::bestand) {
            neemBestand(deel.pad, heel);
        }
    }

    void neemBestand(const std::string& pad, const std::string& heel) {
        const Uitvoerstand stand = keurUitvoer(heel, soort_);
        if (stand == Uitvoerstand::geen ||
            bronnen_.contains(kern::maakSleutel(kern::plak(echteNaar_, pad)))) {
            return;
        }
        if (stand == Uitvoerstand::veranderd) {
            uit_.veranderd.push_back(heel);
        } else {
            neemWeg(pad);
        }
    }

    void neemWeg(const std::string& pad) {
        weg_.insert(kern::maakSleutel(pad));
        ++wegUit_[geefOuder(pad)];
        uit_.weg.push_back(kern::plak(naar_, pad));
    }

    std::size_t ruimLinksOp() {
        return std::erase_if(links_, [this](const std::string& pad) {
            const bool weg = leidtNaarWeg(pad);
            if (weg) {
                neemWeg(pad);
            }
            return weg;
        });
    }

    bool leidtNaarWeg(const std::string& link) const {
        const Linkweg weg = volgLink(naar_, link);
        if (weg.uitkomst != Linkuitkomst::binnen) {
            return false;
        }
        for (const std::string& stap : weg.langs) {
            if (weg_.contains(kern::maakSleutel(stap))) {
                return true;
            }
            const std::string heel = kern::plak(naar_, stap);
            const std::string* bron = makers_(heel);
            // Voorbij een link die de run nog verlegt is hier niets te zien.
            if (bron != nullptr && kern::leesLink(*bron) != kern::leesLink(heel)) {
                return false;
            }
        }
        return false;
    }

    std::size_t ruimDirectoriesOp() {
        return std::erase_if(directories_, [this](const std::string& pad) {
            const bool leeg = wordtLeeg(pad);
            if (leeg) {
                neemWeg(pad);
            }
            return leeg;
        });
    }

    /// Of er iets uit een directory weggaat, en dan alles, ook wat bij het lopen niet te zien was: wat een
    /// versiebeheer bewaart.
    bool wordtLeeg(const std::string& pad) const {
        const auto weg = wegUit_.find(pad);
        const LoopWens alles{.verborgen = true, .versiebeheer = true};
        return weg != wegUit_.end() && loopAf(kern::plak(naar_, pad), alles).size() == weg->second;
    }

    const std::string& naar_;
    std::string echteNaar_;
    Uitvoersoort soort_;
    const Makers& makers_;
    std::set<std::string> bronnen_;              ///< sleutels van echte paden
    std::map<std::string, std::size_t> wegUit_;  ///< hoeveel er uit een directory weggaat
    std::vector<std::string> links_;             ///< die niets maakt
    std::vector<std::string> directories_;       ///< die niets maakt
    std::set<std::string> weg_;                  ///< sleutels
    Opruiming uit_;
};

[[noreturn]] void gooi(const std::string& pad, const std::string& reden) {
    throw Fout(pad + ": kan niet opgeruimd worden: " + reden);
}

}  // namespace

Opruiming zoekOpruiming(const std::string& naar, Uitvoersoort soort, const Makers& makers,
                        const std::vector<std::string>& bronnen) {
    return Opruimer(naar, soort, makers, bronnen).zoek();
}

void ruimOp(const std::string& pad, Uitvoersoort soort) {
    kern::Kenmerken kenmerken;
    std::error_code fout = kern::leesEigenKenmerken(pad, kenmerken);
    if (kenmerken.soort == kern::Bestandssoort::bestand && keurUitvoer(pad, soort) != Uitvoerstand::eerder) {
        gooi(pad, "is intussen veranderd");
    }
    if (kenmerken.soort == kern::Bestandssoort::link && !kern::leesKenmerken(pad, kenmerken)) {
        gooi(pad, "wijst nog ergens heen");
    }
    if (!fout) {
        fs::remove(pad, fout);
    }
    if (fout) {
        gooi(pad, noemReden(fout));
    }
}

void keurOpruimen(const std::string& pad) {
    if (const auto fout = kern::keurSchrijfbaar(geefOuder(pad))) {
        gooi(pad, noemReden(fout));
    }
}

}  // namespace cli
