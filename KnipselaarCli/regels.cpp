#include "KnipselaarCli/regels.h"

namespace cli {

std::string_view snoei(std::string_view regel) {
    constexpr std::string_view blanco = " \t\v\f\r";
    const std::size_t begin = regel.find_first_not_of(blanco);
    return begin == std::string_view::npos ? std::string_view()
                                           : regel.substr(begin, regel.find_last_not_of(blanco) - begin + 1);
}

std::string_view geefInspringing(std::string_view regel) {
    return regel.substr(0, std::min(regel.find_first_not_of(" \t"), regel.size()));
}

std::size_t telTekens(std::string_view tekst) {
    return static_cast<std::size_t>(std::count_if(tekst.begin(), tekst.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
    }));
}

}  // namespace cli
