#pragma once

// Regeleinden: van een tekst uit een editor, en van een tekstbestand van dit systeem.

#include <string>
#include <string_view>

namespace kern {

/// Een kopie met elk regeleinde (LF, CR LF of CR) als LF, zoals een editor haar bij het knippen maakt. Het
/// aantal regels verandert niet.
std::string zetRegeleindenOm(std::string_view tekst);

/// Of een regel in een tekstbestand hier met CR LF eindigt. Zoals de toolkit ze schrijft: alleen op Windows.
bool isRegeleindeCrLf();

/// Geeft een tekst met LF aan een ontvanger met de regeleinden van dit systeem. De stukken gelden alleen
/// tijdens de aanroep.
template <typename Ontvanger>
void geefMetEigenRegeleinden(std::string_view tekst, const Ontvanger& uit) {
    if (isRegeleindeCrLf()) {
        for (std::size_t plek = tekst.find('\n'); plek != std::string_view::npos; plek = tekst.find('\n')) {
            uit(tekst.substr(0, plek));
            uit(std::string_view("\r\n"));
            tekst.remove_prefix(plek + 1);
        }
    }
    uit(tekst);
}

}  // namespace kern
