#include "KnipselaarCli/boom.h"

#include <algorithm>
#include <array>
#include <filesystem>

#include "KnipselaarCli/fout.h"

namespace cli {

namespace fs = std::filesystem;

namespace {

/// De directory zegt het meestal zelf al; alleen anders wordt er naar het bestand gekeken.
Soort bepaalSoort(const fs::directory_entry& deel) {
    std::error_code fout;
    if (deel.is_symlink(fout)) {
        return Soort::link;
    }
    if (deel.is_regular_file(fout)) {
        return Soort::bestand;
    }
    return deel.is_directory(fout) ? Soort::directory : Soort::anders;
}

bool hoortErbij(const Boomdeel& deel, const LoopWens& wens) {
    if (deel.soort == Soort::directory && isVersiebeheer(deel.pad)) {
        return wens.versiebeheer;
    }
    return wens.verborgen || !deel.pad.starts_with('.');
}

std::vector<Boomdeel> lees(const std::string& directory, const LoopWens& wens) {
    std::vector<Boomdeel> delen;
    std::error_code fout;
    for (fs::directory_iterator plek(directory, fout); !fout && plek != fs::directory_iterator();
         plek.increment(fout)) {
        Boomdeel deel{.pad = plek->path().filename().string(), .soort = bepaalSoort(*plek)};
        if (hoortErbij(deel, wens)) {
            delen.push_back(std::move(deel));
        }
    }
    if (fout) {
        throw Fout(directory + ": kan niet gelezen worden: " + noemReden(fout.value()));
    }
    std::sort(delen.begin(), delen.end(), [](const Boomdeel& a, const Boomdeel& b) { return a.pad < b.pad; });
    return delen;
}

void loop(const std::string& wortel, const std::string& voor, const LoopWens& wens,
          std::vector<Boomdeel>& uit) {
    for (Boomdeel& deel : lees(plak(wortel, voor), wens)) {
        deel.pad = plak(voor, deel.pad);
        uit.push_back(deel);
        if (wens.recursief && deel.soort == Soort::directory) {
            loop(wortel, deel.pad, wens, uit);
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

std::string_view geefNaam(std::string_view pad) {
    return pad.substr(pad.rfind('/') + 1);
}

std::string plak(std::string_view directory, std::string_view pad) {
    if (directory.empty() || pad.empty()) {
        return std::string(directory.empty() ? pad : directory);
    }
    std::string uit(directory);
    if (!uit.ends_with('/')) {
        uit += '/';
    }
    return uit += pad;
}

std::string maakEcht(const std::string& pad) {
    std::error_code fout;
    const fs::path echt = fs::weakly_canonical(fs::absolute(pad), fout);
    if (fout) {
        throw Fout(pad + ": " + noemReden(fout.value()));
    }
    const std::string tekst = echt.string();
    return tekst.size() > 1 && tekst.ends_with('/') ? tekst.substr(0, tekst.size() - 1) : tekst;
}

bool ligtIn(std::string_view pad, std::string_view directory) {
    return pad == directory || directory == "/" ||
           (pad.starts_with(directory) && pad.substr(directory.size()).starts_with('/'));
}

}  // namespace cli
