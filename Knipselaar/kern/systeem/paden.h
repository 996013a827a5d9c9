#pragma once

// Waar een pad werkelijk heen wijst. Vraagt het aan het bestandssysteem; een pad dat niet bestaat wijst
// nergens heen.

#include <wx/string.h>

#include <string>
#include <string_view>
#include <system_error>

namespace kern {

/// Een pad van de toolkit als pad van het systeem (zie kenmerken.h).
std::string naarPad(const wxString& tekst);

/// Een pad of naam van het systeem zoals de toolkit haar schrijft. Een naam die niet om te zetten is komt er
/// anders uit, en is zo ook niet te vinden.
wxString naarTekst(const std::string& pad);

/// Of het pad zelf een symbolische link is (op Windows ook een junction).
bool isLink(const std::string& pad);

/// Waar een link heen wijst, zoals het in de link staat; op Windows altijd vanaf de wortel. Leeg als het geen
/// link is.
std::string leesLink(const std::string& pad);

/// Of twee paden hetzelfde bestand of dezelfde directory zijn, hoe ze ook geschreven zijn. Twee gelijk
/// geschreven paden zijn dat altijd.
bool isZelfdePlaats(const std::string& een, const std::string& ander);

/// Het pad zonder links, ".", ".." en dubbele scheidingstekens, met schuine strepen. Leeg als het nergens
/// heen wijst.
/// @param fout  krijgt waarom, als het niet lukt.
std::string geefEchtPad(const std::string& pad, std::error_code& fout);
std::string geefEchtPad(const std::string& pad);

// Wat volgt kijkt alleen naar hoe een pad geschreven is.

/// Of een echt pad in een echte directory ligt, of die directory is.
bool ligtIn(std::string_view pad, std::string_view directory);

/// Gelijk voor twee geschreven paden die het systeem niet onderscheidt: op Windows zijn hoofdletters kleine
/// letters, en is elke schuine streep dezelfde.
std::string maakSleutel(std::string_view pad);

/// De tekens die de namen in een pad van elkaar scheiden.
std::string_view geefScheidingstekens();

bool isScheiding(char teken);

/// De laatste naam van een pad.
std::string_view geefNaam(std::string_view pad);

/// Twee paden achter elkaar; een leeg pad telt niet mee.
std::string plak(std::string_view directory, std::string_view pad);

}  // namespace kern
