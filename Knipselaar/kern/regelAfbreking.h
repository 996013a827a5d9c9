#pragma once

// Lange teksten afbreken voor een plaats die dat zelf niet doet, en ze weer heel maken als er meer plaats
// komt.

#include <wx/string.h>

#include <cstddef>
#include <functional>
#include <vector>

namespace kern {

/// Begint elk vervolg van een regel die afgebroken is.
inline constexpr const char* vervolgInspringing = "  ";

/// Breekt één regel af op spaties, zo dat elk deel past. Een woord dat alleen al niet past blijft heel.
/// @param regel  zonder regeleinde; begint niet met een spatie.
/// @param past   of een regel tekst breed genoeg plaats heeft.
/// @return  de delen, met "\n" en de vervolginspringing ertussen.
wxString breekAf(const wxString& regel, const std::function<bool(const wxString&)>& past);

/// Een regel die weer heel is, en op welke byte zij in de afgebroken tekst (in UTF-8) begon.
struct HeleRegel {
    wxString tekst;
    std::size_t begin;

    bool operator==(const HeleRegel&) const = default;
};

/// De regels die met breekAf afgebroken en daarna onder elkaar gezet zijn, elk weer zoals zij was.
std::vector<HeleRegel> maakHeel(const wxString& afgebroken);

}  // namespace kern
