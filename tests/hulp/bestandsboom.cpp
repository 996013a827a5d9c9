#include "tests/hulp/bestandsboom.h"

#include "tests/hulp/bestanden.h"

namespace hulp {

namespace fs = std::filesystem;

void maakBoom(const fs::path& wortel, const Boom& boom) {
    for (const auto& [pad, inhoud] : boom) {
        const fs::path geheel = wortel / pad;
        fs::create_directories(geheel.parent_path());
        if (inhoud == "/") {
            fs::create_directory(geheel);
        } else if (inhoud.starts_with("-> ")) {
            fs::create_symlink(inhoud.substr(3), geheel);
        } else {
            schrijfBestand(geheel, inhoud);
        }
    }
}

Boom leesBoom(const fs::path& wortel) {
    Boom boom;
    for (const auto& deel : fs::recursive_directory_iterator(wortel)) {
        const std::string naam = deel.path().lexically_relative(wortel).generic_string();
        if (deel.is_symlink()) {
            boom[naam] = "-> " + fs::read_symlink(deel.path()).string();
        } else if (deel.is_directory()) {
            boom[naam] = "/";
        } else {
            boom[naam] = deel.is_regular_file() ? leesBestand(deel.path()) : "bijzonder";
        }
    }
    return boom;
}

bool isBoom(const fs::path& wortel, const Boom& verwacht) {
    try {
        return leesBoom(wortel) == verwacht;
    } catch (const std::exception&) {
        return false;  // wat in de lijst stond is al weer weg
    }
}

}  // namespace hulp
