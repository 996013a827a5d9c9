#include "KnipselaarCli/geefregel.h"

#include "KnipselaarCli/regels.h"

namespace cli {

std::string Geefregel::maakTekst(std::string_view regel) const {
    return std::string(regel.substr(0, inspringing)).append(regel.substr(rest));
}

std::optional<Geefregel> zoekGeefregel(std::string_view regel, std::span<const std::string> prefixen) {
    const std::size_t inspringing = geefInspringing(regel).size();
    for (const std::string& prefix : prefixen) {
        if (!regel.substr(inspringing).starts_with(prefix)) {
            continue;
        }
        std::size_t rest = inspringing + prefix.size();
        const bool heeftBlanco = prefix.back() == ' ' || prefix.back() == '\t';
        if (!heeftBlanco && regel.substr(rest).starts_with(' ')) {
            ++rest;
        }
        return Geefregel{.inspringing = inspringing, .rest = rest};
    }
    return std::nullopt;
}

}  // namespace cli
