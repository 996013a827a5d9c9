#include "Knipselaar/kern/batchVerslag.h"

#include <algorithm>

namespace kern {

namespace {

/// Een tekst met de reden van het systeem erachter, als die er is.
wxString metReden(const wxString& tekst, const std::string& reden) {
    return reden.empty() ? tekst : tekst + " (" + wxString::FromUTF8(reden) + ")";
}

wxString telWoord(std::size_t aantal, const char* een, const char* meer) {
    return wxString::Format("%zu ", aantal) + (aantal == 1 ? een : meer);
}

/// Ter plaatse blijft bij elke storing het bestand zoals het was. Wat niet te lezen was kan een oplossing
/// hebben; wat geen blok heeft heeft er geen.
bool blijftOplossing(const Afloop& afloop) {
    return afloop.terPlaatse && afloop.knip.bronBestaat &&
           (!afloop.knip.bronHeelGelezen || afloop.knip.bevindingen.blokken > 0);
}

wxString noemGevolg(const Afloop& afloop) {
    return blijftOplossing(afloop) ? "; de oplossing staat er nog" : "";
}

/// De storing met de bron, of niets.
wxString noemBronstoring(const Afloop& afloop) {
    return afloop.knip.bronHeelGelezen ? wxString() : metReden("niet te lezen", afloop.knip.bronReden);
}

/// De storing met de bestemming, of niets. Zonder bron is er ook niets geschreven; dat is er geen.
wxString noemDoelstoring(const Afloop& afloop) {
    if (!afloop.tijdelijkReden.empty()) {
        return metReden("geen tijdelijk bestand te maken", afloop.tijdelijkReden);
    }
    if (!afloop.knip.doelHeelGeschreven && (afloop.knip.bronHeelGelezen || !afloop.knip.doelReden.empty())) {
        return metReden(afloop.terPlaatse ? "tijdelijk bestand niet te schrijven" : "niet te schrijven",
                        afloop.knip.doelReden);
    }
    return afloop.vervangReden.empty() ? wxString() : metReden("niet vervangen", afloop.vervangReden);
}

/// Wat de bestemming van een bron overhoudt die niet heel te lezen was.
wxString noemOnheel(const Afloop& afloop) {
    return afloop.terPlaatse ? "niet geknipt: niet te lezen" : "niet heel: de bron is niet te lezen";
}

/// Hoeveel fouten er in de markers zijn; waarschuwingen tellen niet mee.
std::size_t telFouten(const Bevindingen& bevindingen) {
    const auto genoemd = std::count_if(bevindingen.lijst.begin(), bevindingen.lijst.end(),
                                       [](const Bevinding& bevinding) { return isFout(bevinding.soort); });
    return static_cast<std::size_t>(genoemd) + bevindingen.verzwegenFouten;
}

void beschrijfMarkers(const Bevindingen& bevindingen, BatchBijschriften& bijschriften) {
    for (const Bevinding& bevinding : bevindingen.lijst) {
        bijschriften.bron.push_back(beschrijfMetRegel(bevinding));
    }
    if (bevindingen.verzwegen > 0) {
        bijschriften.bron.push_back(
            maakBijschrift(bevindingen.verzwegenFouten > 0 ? Ernst::fout : Ernst::waarschuwing,
                           wxString::Format("en nog %zu keer iets met de markers", bevindingen.verzwegen)));
    }
    if (const std::size_t fouten = telFouten(bevindingen); fouten > 0) {
        bijschriften.bestemming.push_back(
            maakBijschrift(Ernst::fout, telWoord(fouten, "fout", "fouten") + " in de markers; zie links"));
    }
}

}  // namespace

BatchBijschriften beschrijfAfloop(const Afloop& afloop) {
    BatchBijschriften bijschriften;
    const wxString bron = noemBronstoring(afloop);
    const wxString doel = noemDoelstoring(afloop);
    if (afloop.naarZichzelf && afloop.knip.isGelukt()) {
        // Over de markers van een bestand dat er niet meer is valt niets te zeggen.
        const Bijschrift geleegd =
            maakBijschrift(Ernst::fout, "naar zichzelf geknipt: het bestand is nu leeg");
        return {.bron = {geleegd}, .bestemming = {geleegd}};
    }
    if (!bron.empty()) {
        bijschriften.bron.push_back(maakBijschrift(Ernst::fout, bron + noemGevolg(afloop)));
        bijschriften.bestemming.push_back(
            maakBijschrift(Ernst::fout, noemOnheel(afloop) + noemGevolg(afloop)));
    }
    if (!doel.empty()) {
        bijschriften.bestemming.push_back(maakBijschrift(Ernst::fout, doel + noemGevolg(afloop)));
        if (bron.empty()) {
            bijschriften.bron.push_back(maakBijschrift(Ernst::fout, "niet geknipt" + noemGevolg(afloop)));
        }
    }
    if (afloop.verlies.isEr() && afloop.isGelukt()) {
        bijschriften.bestemming.push_back(
            maakBijschrift(Ernst::waarschuwing, wxString::FromUTF8(noemVerlies(afloop.verlies))));
    }
    beschrijfMarkers(afloop.knip.bevindingen, bijschriften);
    return bijschriften;
}

std::vector<Bijschrift> beschrijfOverslag(Overslag reden) {
    switch (reden) {
        case Overslag::bronZelf:
            return {maakBijschrift(Ernst::waarschuwing, "de bestemming is dit bestand zelf")};
        case Overslag::alGeweest:
            return {maakBijschrift(Ernst::opmerking, "onder een andere naam al geknipt")};
        case Overslag::buitenBoom:
            return {maakBijschrift(Ernst::waarschuwing, "wijst buiten de directory; blijft zoals het is")};
        case Overslag::nietGekozen:
            break;
    }
    return {};
}

void BatchTelling::neem(const Afloop& afloop) {
    const Bevindingen& bevindingen = afloop.knip.bevindingen;
    if (!afloop.isGelukt()) {
        ++mislukt_;
    } else if (bevindingen.blokken == 0) {
        ++zonderBlok_;
    } else {
        ++geknipt_;
        blokken_ += bevindingen.blokken;
    }
    markerFout_ = markerFout_ || telFouten(bevindingen) > 0;
}

Bijschrift BatchTelling::geefSamenvatting() const {
    const wxString tekst = telWoord(geknipt_, "bestand", "bestanden") + " geknipt met " +
                           telWoord(blokken_, "blok", "blokken") + ", " +
                           wxString::Format("%zu zonder enig blok, %zu overgeslagen, %zu mislukt",
                                            zonderBlok_, overgeslagen_, mislukt_);
    if (mislukt_ > 0 || markerFout_) {
        return maakBijschrift(Ernst::fout, tekst + (mislukt_ > 0 ? "" : "; er zijn fouten in de markers"));
    }
    return maakBijschrift(geknipt_ == 0 ? Ernst::waarschuwing : Ernst::opmerking, tekst);
}

}  // namespace kern
