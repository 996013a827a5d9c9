#include "KnipselaarCli/boom.h"

#include <algorithm>
#include <array>
#include <filesystem>

#include "Knipselaar/kern/systeem/directory.h"
#include "Knipselaar/kern/systeem/paden.h"
#include "KnipselaarCli/fout.h"

namespace cli {

namespace fs = std::filesystem;

namespace {

bool hoortErbij(const kern::Deel& deel, const LoopWens& wens) {
    if (deel.soort == kern::Bestandssoort::directory && isVersiebeheer(deel.naam)) {
        return wens.versiebeheer;
    }
    return wens.verborgen || !deel.verborgen;
}

std::vector<kern::Deel> lees(const std::string& directory, const LoopWens& wens) {
    std::vector<kern::Deel> delen;
    if (const auto fout = kern::leesDirectory(directory, delen)) {
        throw Fout(directory + ": kan niet gelezen worden: " + noemReden(fout));
    }
    std::erase_if(delen, [&wens](const kern::Deel& deel) { return !hoortErbij(deel, wens); });
    std::sort(delen.begin(), delen.end(),
              [](const kern::Deel& a, const kern::Deel& b) { return a.naam < b.naam; });
    return delen;
}

void loop(const std::string& wortel, const std::string& voor, const LoopWens& wens,
          std::vector<Boomdeel>& uit) {
    for (const kern::Deel& deel : lees(kern::plak(wortel, voor), wens)) {
        const std::string pad = kern::plak(voor, deel.naam);
        uit.push_back({.pad = pad, .soort = deel.soort});
        if (wens.recursief && deel.soort == kern::Bestandssoort::directory) {
            loop(wortel, pad, wens, uit);
        }
    }
}

}  // namespace

bool isVersiebeheer(std::string_view naam) {
    constexpr std::array<std::string_view, 7> namen{".git",    ".svn",   ".hg", ".bzr",
                                                    ".fossil", "_darcs", "CVS"};
    return std::find(namen.begin(), namen.end(), naam) != namen.end();
}

std::vector<Boomdeel> loopAf(const std::string& directory, const LoopWens& wens) {
    std::vector<Boomdeel> delen;
    loop(directory, "", wens, delen);
    return delen;
}

std::string maakEcht(const std::string& pad) {
    std::error_code fout;
    std::string echt = kern::geefEchtPad(pad, fout);
    if (!echt.empty()) {
        return echt;
    }
    if (fout != std::errc::no_such_file_or_directory && fout != std::errc::not_a_directory) {
        throw Fout(pad + ": " + noemReden(fout));
    }
    const fs::path heel = fs::absolute(pad);
    const fs::path ouder = heel.parent_path();
    if (ouder == heel) {
        return heel.string();
    }
    const std::string tekst =
        (fs::path(maakEcht(ouder.string())) / heel.filename()).lexically_normal().generic_string();
    return tekst.size() > 1 && tekst.ends_with('/') ? tekst.substr(0, tekst.size() - 1) : tekst;
}

}  // namespace cli
