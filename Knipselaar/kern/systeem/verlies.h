#pragma once

// Wat een bestand bij zijn vervanging niet kon houden.

#include <string>

namespace kern {

struct Verlies {
    bool eigenaar = false;
    bool groep = false;
    bool toegangslijst = false;
    bool kenmerken = false;  ///< wat een gebruiker of een programma bij het bestand aangetekend had

    bool isEr() const;
};

/// In het Nederlands: "kon eigenaar en groep niet houden". Leeg als er niets verloren ging.
std::string noemVerlies(const Verlies& verlies);

}  // namespace kern
