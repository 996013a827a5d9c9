#include "KnipselaarCli/boom.h"

#include <algorithm>
#include <array>
#include <filesystem>

#include "Knipselaar/kern/systeem/directory.h"
#include "Knipselaar/kern/systeem/onderbreking.h"
#include "Knipselaar/kern/systeem/paden.h"

namespace cli {

namespace fs = std::filesystem;

namespace {

/// Of een versiebeheer hier zijn geschiedenis bewaart. In een werkkopie naast de eerste, of in een module in
/// een ander project, is .git een bestand dat zegt waar zij staat.
bool isVersiebeheer(const kern::Deel& deel) {
    constexpr std::array<std::string_view, 7> namen{".git",    ".svn",   ".hg", ".bzr",
                                                    ".fossil", "_darcs", "CVS"};
    return deel.naam == namen.front() || (deel.soort == kern::Bestandssoort::directory &&
                                          std::find(namen.begin(), namen.end(), deel.naam) != namen.end());
}

bool hoortErbij(const kern::Deel& deel, const LoopWens& wens) {
    return isVersiebeheer(deel) ? wens.versiebeheer : wens.verborgen || !deel.verborgen;
}

class Loper {
  public:
    Loper(const std::string& wortel, const LoopWens& wens, const std::function<void(const Fout&)>& opStoring)
        : wortel_(wortel), wens_(wens), opStoring_(opStoring) {}

    std::vector<Boomdeel> loopAf() {
        loop("");
        return std::move(uit_);
    }

  private:
    void loop(const std::string& voor) {
        for (const kern::Deel& deel : lees(kern::plak(wortel_, voor))) {
            Boomdeel boomdeel{.pad = kern::plak(voor, deel.naam), .soort = deel.soort};
            if (wens_.weglaten && wens_.weglaten(boomdeel)) {
                continue;
            }
            uit_.push_back(boomdeel);
            if (wens_.recursief && deel.soort == kern::Bestandssoort::directory) {
                loop(boomdeel.pad);
            }
        }
    }

    std::vector<kern::Deel> lees(const std::string& directory) const {
        if (kern::isOnderbroken()) {
            throw Fout(noemReden(std::make_error_code(std::errc::interrupted)));
        }
        std::vector<kern::Deel> delen;
        if (const auto fout = kern::leesDirectory(directory, delen)) {
            opStoring_(Fout(directory + ": kan niet gelezen worden: " + noemReden(fout)));
        }
        std::erase_if(delen, [this](const kern::Deel& deel) { return !hoortErbij(deel, wens_); });
        std::sort(delen.begin(), delen.end(),
                  [](const kern::Deel& a, const kern::Deel& b) { return a.naam < b.naam; });
        return delen;
    }

    const std::string& wortel_;
    const LoopWens& wens_;
    const std::function<void(const Fout&)>& opStoring_;
    std::vector<Boomdeel> uit_;
};

}  // namespace

std::vector<Boomdeel> loopAf(const std::string& directory, const LoopWens& wens,
                             const std::function<void(const Fout&)>& opStoring) {
    return Loper(directory, wens, opStoring).loopAf();
}

std::vector<Boomdeel> loopAf(const std::string& directory, const LoopWens& wens) {
    return loopAf(directory, wens, [](const Fout& fout) { throw fout; });
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
