#pragma once

// De coderingen waarin een bestand kan staan, en hoe een tekst in UTF-8 daarin geschreven wordt.

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

namespace cli {

enum class Codering { utf8, latijn1, utf16le, utf16be, utf32le, utf32be };

/// Hoeveel bytes een eenheid heeft: 1, 2 of 4.
std::size_t geefBreedte(Codering codering);

/// Of van een eenheid de zwaarste byte vooraan staat.
bool isGrootEerst(Codering codering);

/// Een tekst past niet in een codering.
class CodeerFout : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Een tekst in UTF-8, in de bytes van een codering. Gooit CodeerFout met het eerste teken dat er niet in
/// past.
std::string codeer(std::string_view utf8, Codering codering);

/// Het regeleinde van één ruwe regel: LF, CR LF of CR in UTF-8; leeg als zij er geen heeft.
std::string_view geefRegeleinde(std::string_view ruweRegel, Codering codering);

/// De naam van een codering in een melding.
const char* noemCodering(Codering codering);

}  // namespace cli
