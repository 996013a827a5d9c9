#pragma once

// Regeleinden van een tekst uit een editor.

#include <string>
#include <string_view>

namespace kern {

/// Een kopie met elk regeleinde (LF, CR LF of CR) als LF, zoals een editor haar bij het knippen maakt. Het
/// aantal regels verandert niet.
std::string zetRegeleindenOm(std::string_view tekst);

}  // namespace kern
