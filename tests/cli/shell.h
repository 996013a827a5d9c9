#pragma once

// Wat een gebruiker op een opdrachtregel zou overnemen, met het gebouwde programma in het zoekpad.

#include <sstream>

#include "tests/cli/proef.h"
#include "tests/hulp/opdracht.h"

namespace proef {

/// Zet overal in een tekst iets anders in de plaats.
inline std::string vervang(std::string tekst, const std::string& oud, const std::string& nieuw) {
    for (std::size_t plek = tekst.find(oud); plek != std::string::npos;
         plek = tekst.find(oud, plek + nieuw.size())) {
        tekst.replace(plek, oud.size(), nieuw);
    }
    return tekst;
}

class Shell : public Cli {
  protected:
    Shell() {
        std::filesystem::create_directory(alles_ / "bin");
        std::filesystem::create_symlink(geefProgramma(), alles_ / "bin/knipselaar-cli");
    }

    /// Het voorbeeld dat in de handleiding onder deze naam staat.
    static std::string leesVoorbeeld(const std::string& naam) {
        std::istringstream regels(hulp::leesBestand(BOOM "/docs/handleiding-cli.md"));
        std::string voorbeeld;
        bool binnen = false;
        for (std::string regel; std::getline(regels, regel);) {
            if (binnen && regel == "```") {
                return voorbeeld;
            }
            if (binnen) {
                voorbeeld += regel + "\n";
            }
            binnen = binnen || (regel.starts_with("```") && regel.ends_with(" " + naam));
        }
        ADD_FAILURE() << naam << " staat niet in de handleiding";
        return {};
    }

    /// Voert een script uit in map_, met het gebouwde programma in het zoekpad. De uitvoer met het
    /// foutkanaal, en de afloop als laatste regel.
    std::string voerScriptUit(const std::string& script) const {
        hulp::schrijfBestand(alles_ / "script", script);
        return hulp::voerUit(
            {"sh", "-c",
             "cd '" + map_.string() + "' && PATH='" + (alles_ / "bin").string() + "':$PATH HOME='" +
                 thuis_.string() +
                 "' GIT_CONFIG_NOSYSTEM=1 GIT_AUTHOR_NAME=Docent GIT_AUTHOR_EMAIL=d@school.invalid "
                 "GIT_COMMITTER_NAME=Docent GIT_COMMITTER_EMAIL=d@school.invalid STUDENTREPO='" +
                 (alles_ / "student.git").string() + "' sh -e ../script 2>&1; echo \"afloop $?\""});
    }

    static Woorden leesRegels(const std::string& tekst) {
        Woorden regels;
        std::istringstream stroom(tekst);
        for (std::string regel; std::getline(stroom, regel);) {
            regels.push_back(regel);
        }
        return regels;
    }
};

/// Een bron met een fout in de markers.
inline const std::string foutBron = "//**** Student Begin ****//\nx\n";

}  // namespace proef
