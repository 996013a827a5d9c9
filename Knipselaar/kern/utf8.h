#pragma once

// UTF-8 zoals de strikte omzetter van de toolkit (wxMBConvStrictUTF8) het leest: te lange vormen
// van drie en vier bytes en surrogaten gelden, C0, C1 en F5 en hoger niet.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "Knipselaar/kern/bytes.h"

namespace kern {

enum class Utf8Oordeel {
    geldig,
    half,  ///< de reeks klopt tot het einde van de bytes, maar is daar nog niet af
    ongeldig
};

struct Utf8Teken {
    Utf8Oordeel oordeel;
    std::size_t lengte;    ///< bytes van een geldig teken, anders 0
    std::uint32_t waarde;  ///< codepunt van een geldig teken, anders 0
};

/// Leest het eerste teken. Bytes voorbij U+10FFFF zijn ongeldig.
/// @param bytes  minstens één byte.
Utf8Teken leesUtf8(std::string_view bytes);

/// Hangt een codepunt in zijn kortste vorm achter uit.
/// @param waarde  hoogstens U+10FFFF.
void schrijfUtf8(std::uint32_t waarde, Bytes& uit);

/// Hangt gewone ASCII (zie telGewoneAscii) achter uit, tot de eerste andere byte. Een CR LF stopt niet, en
/// wordt een LF.
/// @return hoeveel bytes het waren.
std::size_t neemGewoneAscii(std::string_view bytes, Bytes& uit);

/// Zet bytes in ISO 8859-1 om en hangt ze achter uit, tot de eerste CR of NUL. Een CR LF stopt niet, en wordt
/// een LF.
/// @return hoeveel bytes het waren; nul als de eerste een CR of NUL is die stopt.
std::size_t neemLatijn1(std::string_view bytes, Bytes& uit);

/// Of alle bytes hele, geldige tekens in hun kortste vorm zijn en er geen CR of NUL bij is.
bool isSchoneUtf8(std::string_view bytes);

/// Of een CR direct voor een LF het tellen beëindigt, zoals elke andere CR.
enum class CrLf { eindigt, teltMee };

/// Aantal bytes aan het begin dat gewone ASCII is: geen CR, geen NUL, geen hoge byte. Een LF telt mee.
std::size_t telGewoneAscii(std::string_view bytes, CrLf crLf = CrLf::eindigt);

/// Aantal bytes aan het begin dat gewone ASCII is of een heel teken van twee bytes.
std::size_t telKorteTekens(std::string_view bytes, CrLf crLf = CrLf::eindigt);

/// Aantal bytes aan het begin zonder CR of NUL.
std::size_t telZonderEinden(std::string_view bytes, CrLf crLf = CrLf::eindigt);

/// Hoeveel bytes een LF zijn.
std::size_t telRegeleinden(std::string_view bytes);

}  // namespace kern
