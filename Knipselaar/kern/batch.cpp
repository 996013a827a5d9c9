#include "Knipselaar/kern/batch.h"

#include <wx/dir.h>
#include <wx/log.h>

#include <string>
#include <unordered_set>

#include "Knipselaar/kern/paden.h"
#include "Knipselaar/kern/terPlaatse.h"

namespace kern {

namespace {

/// Verzamelt bestanden zoals wxDir::GetAllFiles, maar gaat niet door links naar directories.
class Verzamelaar : public wxDirTraverser {
  public:
    explicit Verzamelaar(std::vector<wxString>& paden) : paden_(paden) {}

    wxDirTraverseResult OnFile(const wxString& pad) override {
        paden_.push_back(pad);
        return wxDIR_CONTINUE;
    }

    wxDirTraverseResult OnDir(const wxString& pad) override {
        return isLink(pad) ? wxDIR_IGNORE : wxDIR_CONTINUE;
    }

  private:
    std::vector<wxString>& paden_;
};

/// Houdt bij welke echte bestanden van een boom al aan de beurt waren.
class Beurten {
  public:
    explicit Beurten(const wxString& boom) : wortel_(geefEchtPad(boom)) {}

    /// Of dit echte pad in de boom ligt en nog niet aan de beurt was; daarna was het dat wel. Van een boom
    /// die zelf niet te vinden is ligt niets binnen.
    bool neem(const std::string& echt) {
        const bool binnen = wortel_ == "/" || (!wortel_.empty() && echt.starts_with(wortel_ + "/"));
        return binnen && geweest_.insert(echt).second;
    }

  private:
    std::string wortel_;
    std::unordered_set<std::string> geweest_;
};

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
        Verzamelaar verzamelaar(paden);
        recurDir.Traverse(verzamelaar, wxEmptyString, wxDIR_FILES | wxDIR_DIRS);
    }
    return paden;
}

void knipDirectory(const wxString& bron, const wxString& bestemming, const std::vector<wxString>& namen,
                   BatchOpdracht& opdracht) {
    const bool zelfdeDirectory = isZelfdePlaats(bron, bestemming);
    long nummer = 1;
    std::size_t gedaan = 0;
    for (const wxString& naam : namen) {
        opdracht.meldVoortgang(gedaan++, namen.size());
        const wxFileName bronBestand(bron, naam);
        const wxFileName doelBestand(bestemming, naam);
        const bool zouLegen =
            !zelfdeDirectory && isZelfdePlaats(bronBestand.GetFullPath(), doelBestand.GetFullPath());
        if (!opdracht.isGekozen(bronBestand) || zouLegen) {
            opdracht.meldOvergeslagen(nummer, bronBestand);
            continue;
        }
        opdracht.knip(bronBestand, doelBestand);
        opdracht.meldVerwerkt(nummer, bronBestand, doelBestand);
        ++nummer;
    }
}

void knipBoom(const wxString& boom, const std::vector<wxString>& paden, BatchOpdracht& opdracht) {
    Beurten beurten(boom);
    long nummer = 0;
    for (const wxString& pad : paden) {
        opdracht.meldVoortgang(static_cast<std::size_t>(nummer), paden.size());
        ++nummer;
        const wxFileName bestand(pad);
        // Een pad dat nergens heen wijst wordt gemeld als verwerkt, maar nooit vervangen: ook als het daarna
        // wel te vinden is, kan het al aan de beurt geweest zijn of buiten de boom liggen.
        const std::string echt = geefEchtPad(pad);
        if (!opdracht.isGekozen(bestand) || (!echt.empty() && !beurten.neem(echt))) {
            opdracht.meldOvergeslagen(nummer, bestand);
            continue;
        }
        TerPlaatse terPlaatse;
        opdracht.meldVerwerkt(nummer, bestand, bestand);
        if (opdracht.knip(bestand, terPlaatse.geefTijdelijk()).isGelukt() && !echt.empty()) {
            terPlaatse.vervang(echt);
        }
    }
}

}  // namespace kern
