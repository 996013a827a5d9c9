#pragma once

// De kleuring van de editors als gegevens: welke stijl welke kleur krijgt, welke vouwtekens er zijn en welke
// woorden sleutelwoorden heten.

#include <wx/stc/stc.h>

#include <array>

namespace stijl {

struct Kleur {
    unsigned char rood;
    unsigned char groen;
    unsigned char blauw;
};

constexpr Kleur grijs(unsigned char sterkte) {
    return {sterkte, sterkte, sterkte};
}
constexpr Kleur wit = grijs(255);

struct Stijlkleur {
    int stijl;
    Kleur voorgrond;
    bool vet = false;
};

struct Vouwteken {
    int nummer;
    int vorm;
    Kleur achtergrond;  ///< de voorgrond is altijd grijs 100
};

inline constexpr Kleur vouwtekenVoorgrond = grijs(100);

inline constexpr std::array<Vouwteken, 7> vouwtekens{{
    {wxSTC_MARKNUM_FOLDER, wxSTC_MARK_ARROW, grijs(100)},
    {wxSTC_MARKNUM_FOLDEROPEN, wxSTC_MARK_ARROWDOWN, grijs(100)},
    {wxSTC_MARKNUM_FOLDERSUB, wxSTC_MARK_EMPTY, grijs(100)},
    {wxSTC_MARKNUM_FOLDEREND, wxSTC_MARK_ARROW, wit},
    {wxSTC_MARKNUM_FOLDEROPENMID, wxSTC_MARK_ARROWDOWN, wit},
    {wxSTC_MARKNUM_FOLDERMIDTAIL, wxSTC_MARK_EMPTY, grijs(100)},
    {wxSTC_MARKNUM_FOLDERTAIL, wxSTC_MARK_EMPTY, grijs(100)},
}};

inline constexpr std::array<Stijlkleur, 12> cKleuren{{
    {wxSTC_C_STRING, {150, 0, 0}},
    {wxSTC_C_PREPROCESSOR, {165, 105, 0}},
    {wxSTC_C_IDENTIFIER, {40, 0, 60}},
    {wxSTC_C_NUMBER, {0, 150, 0}},
    {wxSTC_C_CHARACTER, {150, 0, 0}},
    {wxSTC_C_WORD, {0, 0, 150}, true},
    {wxSTC_C_WORD2, {0, 150, 0}, true},
    {wxSTC_C_COMMENT, grijs(150)},
    {wxSTC_C_COMMENTLINE, grijs(150)},
    {wxSTC_C_COMMENTDOC, grijs(150)},
    {wxSTC_C_COMMENTDOCKEYWORD, {0, 0, 200}, true},
    {wxSTC_C_COMMENTDOCKEYWORDERROR, {0, 0, 200}},
}};

inline constexpr std::array<Stijlkleur, 15> vhdlKleuren{{
    {wxSTC_VHDL_DEFAULT, grijs(150)},
    {wxSTC_VHDL_STRING, {150, 0, 0}},
    {wxSTC_VHDL_KEYWORD, {165, 105, 0}},
    {wxSTC_VHDL_STRINGEOL, {40, 0, 60}},
    {wxSTC_VHDL_NUMBER, {0, 150, 0}},
    {wxSTC_VHDL_IDENTIFIER, {150, 0, 0}},
    {wxSTC_VHDL_OPERATOR, {0, 0, 150}},
    {wxSTC_VHDL_COMMENT, {0, 150, 150}},
    {wxSTC_VHDL_COMMENTLINEBANG, grijs(150)},
    {wxSTC_VHDL_STDOPERATOR, grijs(150)},
    {wxSTC_VHDL_ATTRIBUTE, {0, 0, 200}},
    {wxSTC_VHDL_STDFUNCTION, {0, 0, 200}},
    {wxSTC_VHDL_STDPACKAGE, {0, 0, 200}},
    {wxSTC_VHDL_STDTYPE, {0, 0, 200}},
    {wxSTC_VHDL_USERWORD, {0, 0, 200}},
}};

inline constexpr const char* cWoorden =
    "auto break case char const continue default do double else enum extern float for goto if int long "
    "register return short signed sizeof static struct switch typedef union unsigned void volatile while";

/// Alleen wat C++ aan C toevoegt; het is de tweede verzameling van dezelfde lexer.
inline constexpr const char* cppWoorden =
    "asm dynamic_cast namespace reinterpret_cast try bool explicit new static_cast typeid catch false "
    "operator template typename class friend private this using const_cast inline public throw virtual "
    "delete mutable protected true wchar_t";

/// "thent" en "sli" staan er met opzet zo: "then" en "sll" blijven ongekleurd.
inline constexpr const char* vhdlWoorden =
    "abs access after alias all and architecture array assert attribute\t\t\t"
    "begin block body buffer bus case component configuration constant disconnect downto else elsif end "
    "entity exit\t\t\t"
    "file for function generate generic group guarded if impure in inertial inout is label library linkage "
    "literal\t\t\t"
    "loop map mod nand new next nor not null of on open or others out package port postponed procedure "
    "process pure range\t\t\t"
    "record register reject return rol ror select severity signal shared sla sli sra srl subtype thent to "
    "transport\t\t\t"
    "type unaffected units until use variable wait when while with xnor xor";

}  // namespace stijl
