#include "Knipselaar/kern/terPlaatse.h"

#include <wx/filefn.h>
#include <wx/log.h>

#include <array>

#include "Knipselaar/kern/blokgrootte.h"
#include "Knipselaar/kern/systeem/buurbestand.h"
#include "Knipselaar/kern/systeem/paden.h"
#include "Knipselaar/kern/systeem/reden.h"
#include "Knipselaar/kern/systeem/vervanging.h"

namespace kern {

namespace {

std::error_code kopieerInhoud(int bron, int doel) {
    std::array<char, blokGrootte> blok;  // NOLINT(cppcoreguidelines-pro-type-member-init): lees vult hem
    for (;;) {
        const Gelezen gelezen = lees(bron, blok);
        if (gelezen.fout || gelezen.aantal == 0) {
            return gelezen.fout;
        }
        if (const auto fout = schrijf(doel, {blok.data(), gelezen.aantal})) {
            return fout;
        }
    }
}

/// Zet een kopie op de plaats van een bestaand bestand. Dat gaat ook vanaf een ander bestandssysteem, en wie
/// eigenaar en groep niet kan overnemen laat ze zo door de directory van de bestemming kiezen.
std::error_code kopieer(const std::string& knipsel, const std::string& echt, const Kenmerken& oud,
                        Verlies& verlies) {
    const Opening bron = openBron(knipsel);
    if (!bron.bestand.isOpen()) {
        return bron.keur();
    }
    Buurbestand nieuw(echt);
    if (!nieuw.isOpen()) {
        return nieuw.geefFout();
    }
    if (const auto fout = kopieerInhoud(bron.bestand.geefKanaal(), nieuw.geefKanaal())) {
        return fout;
    }
    const auto fout = nieuw.vervang(oud);
    verlies = nieuw.geefVerlies();
    return fout;
}

}  // namespace

TerPlaatse::TerPlaatse(const wxString& tijdelijkeDirectory) {
    const wxLogNull geenMeldingen;
    tijdelijk_.AssignTempFileName(tijdelijkeDirectory + wxFileName::GetPathSeparator() + "Knipselaar");
    if (!tijdelijk_.IsOk()) {
        onthoudReden({static_cast<int>(wxSysErrorCode()), std::system_category()});
    }
}

TerPlaatse::~TerPlaatse() {
    if (tijdelijk_.IsOk()) {
        const wxLogNull geenMeldingen;
        wxRemoveFile(tijdelijk_.GetFullPath());
    }
}

bool TerPlaatse::vervang(const std::string& echt, const std::optional<Kenmerken>& gelezen) {
    Kenmerken oud;
    if (!onthoudReden(leesKenmerken(echt, oud))) {
        return false;
    }
    if (oud.soort != Bestandssoort::bestand) {
        reden_ = "is geen gewoon bestand";
        return false;
    }
    if (gelezen && !oud.isZelfdePlaats(*gelezen)) {
        reden_ = "is intussen door een ander bestand vervangen";
        return false;
    }
    const std::string knipsel = naarPad(tijdelijk_.GetFullPath());
    if (!verhuis(knipsel, echt, oud)) {
        tijdelijk_.Clear();
        return true;
    }
    return onthoudReden(kopieer(knipsel, echt, oud, verlies_));
}

bool TerPlaatse::onthoudReden(const std::error_code& fout) {
    if (fout) {
        reden_ = noemReden(fout);
    }
    return !fout;
}

}  // namespace kern
