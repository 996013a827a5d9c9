#include "Knipselaar/kern/batch.h"

#include <wx/dir.h>
#include <wx/log.h>

#include <optional>
#include <string>
#include <unordered_set>

#include "Knipselaar/kern/systeem/directory.h"
#include "Knipselaar/kern/systeem/paden.h"
#include "Knipselaar/kern/terPlaatse.h"

namespace kern {

namespace {

/// Of een naam in tekst te schrijven is. Is zij dat niet, dan is wat zij noemt langs die tekst niet te
/// vinden.
bool isTeSchrijven(const std::string& naam) {
    return naarPad(naarTekst(naam)) == naam;
}

/// Noemt wat wxDir::GetAllFiles noemt, in die volgorde, maar gaat niet door links naar directories. De
/// toolkit zou bij elke naam tweemaal vragen wat het is; de directory zegt het meestal zelf al. Een
/// subdirectory die niet opengaat is leeg.
/// @param directory  met een scheidingsteken achteraan.
void verzamel(const wxString& directory, std::vector<wxString>& paden) {
    std::vector<Deel> delen;
    leesDirectory(naarPad(directory), delen);
    std::vector<wxString> bestanden;
    for (const Deel& deel : delen) {
        if (deel.verborgen) {
            continue;
        }
        const wxString pad = directory + naarTekst(deel.naam);
        Kenmerken doel;
        if (deel.soort == Bestandssoort::directory && isTeSchrijven(deel.naam)) {
            verzamel(pad + wxFileName::GetPathSeparator(), paden);
        } else if (deel.soort != Bestandssoort::link || leesKenmerken(naarPad(pad), doel) ||
                   doel.soort != Bestandssoort::directory) {
            bestanden.push_back(pad);
        }
    }
    paden.insert(paden.end(), bestanden.begin(), bestanden.end());
}

/// Zoekt echte paden van bestanden die in groepen bij elkaar liggen: van een directory één keer, zolang zij
/// dezelfde blijft. Elk deel van elk pad navragen kost het systeem meer dan het lezen van een bestand.
class EchtePaden {
  public:
    /// Zoals geefEchtPad.
    std::string zoek(const std::string& pad) {
        const std::string directory = pad.substr(0, pad.size() - geefNaam(pad).size());
        if (directory != directory_ || !isNogDezelfde()) {
            directory_ = directory;
            echteDirectory_ = geefEchtPad(directory);
            leesKenmerken(echteDirectory_, kenmerken_);
        }
        std::string echt = plak(echteDirectory_, geefNaam(pad));
        Kenmerken kenmerken;
        if (echteDirectory_.empty() || leesEigenKenmerken(echt, kenmerken) ||
            kenmerken.soort == Bestandssoort::link) {
            return geefEchtPad(pad);
        }
        return echt;
    }

  private:
    bool isNogDezelfde() const {
        Kenmerken nu;
        return !leesKenmerken(echteDirectory_, nu) && nu.isZelfdePlaats(kenmerken_);
    }

    std::string directory_;
    std::string echteDirectory_;
    Kenmerken kenmerken_;
};

/// Houdt bij welke echte bestanden van een boom al aan de beurt waren.
class Beurten {
  public:
    explicit Beurten(const wxString& boom) : wortel_(geefEchtPad(naarPad(boom))) {}

    /// Waarom dit echte pad niet aan de beurt mag; niets als het in de boom ligt en nog niet aan de beurt
    /// was. Daarna was het dat wel. Van een boom die zelf niet te vinden is ligt niets binnen.
    std::optional<Overslag> neem(const std::string& echt) {
        const bool binnen = !wortel_.empty() && ligtIn(echt, wortel_);
        if (!binnen) {
            return Overslag::buitenBoom;
        }
        return geweest_.insert(echt).second ? std::nullopt : std::optional(Overslag::alGeweest);
    }

  private:
    std::string wortel_;
    std::unordered_set<std::string> geweest_;
};

std::optional<Overslag> keurVlak(const wxFileName& bron, const wxFileName& doel, bool zelfdeDirectory,
                                 BatchOpdracht& opdracht) {
    if (!opdracht.isGekozen(bron)) {
        return Overslag::nietGekozen;
    }
    const bool zouLegen =
        !zelfdeDirectory && isZelfdePlaats(naarPad(bron.GetFullPath()), naarPad(doel.GetFullPath()));
    return zouLegen ? std::optional(Overslag::bronZelf) : std::nullopt;
}

/// Knipt één bestand ter plaatse.
/// @param echt  het echte pad, of leeg als het bestand nergens te vinden is; dan wordt er niets vervangen.
Afloop knipTerPlaatse(const wxFileName& bestand, const std::string& echt, TerPlaatse& terPlaatse,
                      BatchOpdracht& opdracht) {
    Afloop afloop;
    afloop.terPlaatse = true;
    afloop.tijdelijkReden = terPlaatse.geefReden();
    afloop.knip = opdracht.knip(bestand, terPlaatse.geefTijdelijk());
    if (afloop.knip.isGelukt() && echt.empty()) {
        afloop.vervangReden = "was eerst niet te vinden";
    } else if (afloop.knip.isGelukt() && !terPlaatse.vervang(echt, afloop.knip.bron)) {
        afloop.vervangReden = terPlaatse.geefReden();
    }
    afloop.verlies = terPlaatse.geefVerlies();
    return afloop;
}

}  // namespace

std::vector<wxString> lijstDirectory(const wxString& directory) {
    const wxLogNull geenMeldingen;
    const wxDir origDir(directory);
    wxASSERT(origDir.IsOpened());
    std::vector<wxString> namen;
    wxString naam;
    for (bool verder = origDir.IsOpened() && origDir.GetFirst(&naam, wxEmptyString, wxDIR_FILES); verder;
         verder = origDir.GetNext(&naam)) {
        namen.push_back(naam);
    }
    return namen;
}

std::vector<wxString> lijstBoom(const wxString& boom) {
    const wxLogNull geenMeldingen;
    const wxDir recurDir(boom);
    wxASSERT(recurDir.IsOpened());
    std::vector<wxString> paden;
    if (recurDir.IsOpened()) {
        verzamel(recurDir.GetNameWithSep(), paden);
    }
    return paden;
}

void knipDirectory(const wxString& bron, const wxString& bestemming, const std::vector<wxString>& namen,
                   BatchOpdracht& opdracht) {
    const bool zelfdeDirectory = isZelfdePlaats(naarPad(bron), naarPad(bestemming));
    long nummer = 1;
    std::size_t gedaan = 0;
    for (const wxString& naam : namen) {
        opdracht.meldVoortgang(gedaan++, namen.size());
        const wxFileName bronBestand(bron, naam);
        const wxFileName doelBestand(bestemming, naam);
        if (const auto overslag = keurVlak(bronBestand, doelBestand, zelfdeDirectory, opdracht)) {
            opdracht.meldOvergeslagen(nummer, bronBestand, *overslag);
            continue;
        }
        Afloop afloop;
        afloop.naarZichzelf = zelfdeDirectory;
        afloop.knip = opdracht.knip(bronBestand, doelBestand);
        opdracht.meldVerwerkt(nummer, bronBestand, doelBestand);
        opdracht.meldAfloop(afloop);
        ++nummer;
    }
}

void knipBoom(const wxString& boom, const std::vector<wxString>& paden, BatchOpdracht& opdracht) {
    const wxString tijdelijkeDirectory = wxFileName::GetTempDir();
    Beurten beurten(boom);
    EchtePaden echtePaden;
    long nummer = 0;
    for (const wxString& pad : paden) {
        opdracht.meldVoortgang(static_cast<std::size_t>(nummer), paden.size());
        ++nummer;
        const wxFileName bestand(pad);
        // Een pad dat nergens heen wijst wordt gemeld als verwerkt, maar nooit vervangen: ook als het daarna
        // wel te vinden is, kan het al aan de beurt geweest zijn of buiten de boom liggen.
        const std::string echt = echtePaden.zoek(naarPad(pad));
        std::optional<Overslag> overslag;
        if (!opdracht.isGekozen(bestand)) {
            overslag = Overslag::nietGekozen;
        } else if (!echt.empty()) {
            overslag = beurten.neem(echt);
        }
        if (overslag) {
            opdracht.meldOvergeslagen(nummer, bestand, *overslag);
            continue;
        }
        TerPlaatse terPlaatse(tijdelijkeDirectory);
        opdracht.meldVerwerkt(nummer, bestand, bestand);
        opdracht.meldAfloop(knipTerPlaatse(bestand, echt, terPlaatse, opdracht));
    }
}

}  // namespace kern
