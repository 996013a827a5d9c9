#include "KnipselaarCli/proef.h"

#include <string_view>

namespace cli {

Proef probeer(const std::string& sjabloon, const std::string& pad) {
    constexpr std::string_view plaats = "{}";
    Proef proef{.pad = pad, .opdracht = sjabloon, .uitkomst = {}};
    const std::string woord = kern::citeer(pad);
    for (std::size_t plek = 0; (plek = proef.opdracht.find(plaats, plek)) != std::string::npos;
         plek += woord.size()) {
        proef.opdracht.replace(plek, plaats.size(), woord);
    }
    proef.uitkomst = kern::voerOpdrachtUit(proef.opdracht);
    return proef;
}

}  // namespace cli
