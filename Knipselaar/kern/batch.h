#pragma once

// De twee batches: alle bestanden van een directory naar een andere knippen, of alle bestanden van een boom
// ter plaatse. Hier wordt de lijst gemaakt, afgelopen, geteld en vervangen; wat er gekozen, geknipt en gemeld
// wordt zegt de opdrachtgever. Kent geen venster en meldt zelf niets.

#include <wx/filename.h>

#include <string>
#include <vector>

#include "Knipselaar/kern/bestandKnipper.h"
#include "Knipselaar/kern/systeem/verlies.h"

namespace kern {

/// Waarom een bestand niet aan de beurt komt.
enum class Overslag {
    nietGekozen,  ///< de opdrachtgever koos het niet
    bronZelf,     ///< de bestemming is het bronbestand zelf en zou leeg raken
    alGeweest,    ///< het was via een andere naam al aan de beurt
    buitenBoom    ///< het ligt via een link buiten de boom
};

/// Hoe het met een bestand afliep.
struct Afloop {
    KnipUitslag knip;
    bool terPlaatse = false;
    bool naarZichzelf = false;  ///< bron en bestemming waren hetzelfde bestand; het is geleegd voor het lezen
    std::string tijdelijkReden;  ///< waarom er geen tijdelijk bestand te maken was; leeg als het lukte
    std::string vervangReden;    ///< waarom het knipsel de plaats van het bestand niet innam
    Verlies verlies;             ///< wat het bestand daarbij niet kon houden

    bool isGelukt() const {
        return knip.isGelukt() && !naarZichzelf && tijdelijkReden.empty() && vervangReden.empty();
    }
};

/// Wat een batch van zijn opdrachtgever nodig heeft.
class BatchOpdracht {
  public:
    BatchOpdracht() = default;
    BatchOpdracht(const BatchOpdracht&) = delete;
    BatchOpdracht& operator=(const BatchOpdracht&) = delete;
    virtual ~BatchOpdracht() = default;

    /// Of dit bestand aan de beurt komt.
    virtual bool isGekozen(const wxFileName& bestand) = 0;

    /// Knipt het ene bestand naar het andere.
    virtual KnipUitslag knip(const wxFileName& bron, const wxFileName& bestemming) = 0;

    /// Een bestand blijft zoals het is.
    virtual void meldOvergeslagen(long nummer, const wxFileName& bestand, Overslag reden) = 0;

    /// Een bestand is aan de beurt; ter plaatse zijn bron en bestemming hetzelfde. Zegt niet of het lukte.
    virtual void meldVerwerkt(long nummer, const wxFileName& bron, const wxFileName& bestemming) = 0;

    /// Hoe het afliep met het bestand dat als laatste aan de beurt was.
    virtual void meldAfloop(const Afloop& afloop) = 0;

    /// Hoe ver de batch is; komt voor elk bestand, ook voor een dat overgeslagen wordt. Wie het niet hoeft te
    /// weten, doet er niets mee.
    virtual void meldVoortgang(std::size_t /*gedaan*/, std::size_t /*totaal*/) {}
};

/// De namen van de gewone en bijzondere bestanden in een directory, zonder verborgen bestanden, in de
/// volgorde van de directory. Leeg als zij niet te openen is.
std::vector<wxString> lijstDirectory(const wxString& directory);

/// De volledige paden van alle bestanden in een boom, zonder verborgen bestanden en directories. De bestanden
/// van een subdirectory komen voor die van de directory zelf. Een link naar een directory wordt niet
/// gevolgd: die kan buiten de boom of in een kring uitkomen. Leeg als de boom niet te openen is.
std::vector<wxString> lijstBoom(const wxString& boom);

/// Knipt de genoemde bestanden van de ene directory naar de andere, onder dezelfde naam. Een verwerkt bestand
/// telt mee, een overgeslagen bestand krijgt het nummer van het volgende. Een bestemming die via een link of
/// een tweede naam het bronbestand zelf is, wordt overgeslagen: schrijven zou het origineel legen. In
/// eenzelfde directory gebeurt dat wel; daar heeft de opdrachtgever om gevraagd.
void knipDirectory(const wxString& bron, const wxString& bestemming, const std::vector<wxString>& namen,
                   BatchOpdracht& opdracht);

/// Knipt de genoemde bestanden van een boom ter plaatse. Het nummer is de plaats in de lijst. Elk echt
/// bestand komt hoogstens eenmaal aan de beurt; wat via een link al geknipt is, of buiten de boom ligt, wordt
/// overgeslagen. Een bestand dat niet heel gelezen, geknipt en geschreven kan worden blijft zoals het is.
void knipBoom(const wxString& boom, const std::vector<wxString>& paden, BatchOpdracht& opdracht);

}  // namespace kern
