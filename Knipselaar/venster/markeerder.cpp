#include "Knipselaar/venster/markeerder.h"

#include <chrono>

#include "Knipselaar/kern/bevindingTekst.h"
#include "Knipselaar/kern/regeleinden.h"
#include "Knipselaar/venster/merken.h"
#include "Knipselaar/venster/volgEditor.h"

namespace {

using Klok = std::chrono::steady_clock;

/// Zolang merkt niemand dat er gewerkt wordt.
constexpr auto langsteStap = std::chrono::milliseconds(8);

/// Zoveel bytes of regels gaan er voorbij voor er weer op de klok gekeken wordt.
constexpr std::size_t ontleedStuk = 256 * 1024;
constexpr int regelStuk = 256;

/// Een blok dat nergens eindigt loopt door tot het einde van de tekst.
kern::Blok maakOpenBlok(std::size_t beginNummer, std::size_t aantalRegels) {
    return {.begin = {}, .eind = {}, .beginNummer = beginNummer, .eindNummer = aantalRegels + 1};
}

}  // namespace

Markeerder::Markeerder(VolgEditor& origineel, VolgEditor& aangepast)
    : origineel_(origineel), aangepast_(aangepast) {
    merken::bereidVoor(origineel_);
    merken::bereidVoor(aangepast_);
}

bool Markeerder::werkBij(const Stand& stand) {
    volgBreedte();
    if (isVeranderd(stand)) {
        begin(stand);
    }
    const auto einde = Klok::now() + langsteStap;
    while (stap_ != Stap::klaar && Klok::now() < einde) {
        if (stap_ == Stap::ontleden) {
            ontleedVerder();
        } else {
            merkVerder();
        }
    }
    return stap_ != Stap::klaar;
}

bool Markeerder::isVeranderd(const Stand& stand) const {
    return !gezien_ || gezien_->origineel != origineel_.geefVersie() ||
           gezien_->aangepast != aangepast_.geefVersie() || gezien_->stand.pad != stand.pad ||
           gezien_->stand.teksten != stand.teksten;
}

void Markeerder::begin(const Stand& stand) {
    gezien_ =
        Gezien{.stand = stand, .origineel = origineel_.geefVersie(), .aangepast = aangepast_.geefVersie()};
    tekst_ = kern::zetRegeleindenOm(
        {origineel_.GetCharacterPointer(), static_cast<std::size_t>(origineel_.GetTextLength())});
    blokken_.clear();
    ontleder_.reset();
    mal_.emplace(stand.teksten);
    ontleder_.emplace(mal_->geefMarkers(), [this](const kern::Blok& blok) { blokken_.push_back(blok); });
    ontleedTot_ = 0;
    stap_ = Stap::ontleden;
}

void Markeerder::ontleedVerder() {
    const std::string_view rest = std::string_view(tekst_).substr(ontleedTot_);
    const std::size_t grens = rest.find('\n', ontleedStuk);
    const std::size_t einde = grens == std::string_view::npos ? rest.rfind('\n') : grens;
    if (einde != std::string_view::npos) {
        ontleder_->neem(rest.substr(0, einde + 1));
        ontleedTot_ += einde + 1;
        return;
    }
    ontleder_->neemStaart(rest);
    kern::Bevindingen bevindingen = ontleder_->maakAf();
    bevindingen_ = std::move(bevindingen.lijst);
    if (bevindingen.open > 0) {
        blokken_.push_back(
            maakOpenBlok(bevindingen.open, static_cast<std::size_t>(origineel_.GetLineCount())));
    }
    meldVeroudering();
    regel_ = 0;
    blok_ = 0;
    bevinding_ = 0;
    kleurTot_ = 0;
    stap_ = Stap::merken;
}

void Markeerder::merkVerder() {
    const int aantal = origineel_.GetLineCount();
    for (int teller = 0; teller < regelStuk && regel_ < aantal; ++teller, ++regel_) {
        merkRegel(regel_);
    }
    if (regel_ == aantal) {
        sluitMerkenAf();
    }
}

void Markeerder::merkRegel(int regel) {
    const auto nummer = static_cast<std::size_t>(regel) + 1;
    int merk = merken::geen;
    if (blok_ < blokken_.size() && blokken_[blok_].beginNummer <= nummer) {
        const kern::Blok& blok = blokken_[blok_];
        const bool isRand = nummer == blok.beginNummer || nummer == blok.eindNummer;
        merk = merken::blok | (isRand ? merken::rand : merken::geen);
        if (nummer == blok.beginNummer) {
            const int einde = origineel_.GetLineEndPosition(static_cast<int>(blok.eindNummer) - 1);
            merken::kleurBlok(origineel_, kleurTot_, origineel_.PositionFromLine(regel), einde);
            kleurTot_ = einde;
        }
        blok_ += nummer == blok.eindNummer ? 1 : 0;
    }
    merken::merkRegel(origineel_, regel, merk);

    std::vector<kern::Bijschrift> bijschriften;
    for (; bevinding_ < bevindingen_.size() && bevindingen_[bevinding_].regel == nummer; ++bevinding_) {
        bijschriften.push_back(kern::beschrijf(bevindingen_[bevinding_]));
    }
    const bool heeftBijschrift = origineel_.AnnotationGetLines(regel) > 0;
    if ((heeftBijschrift || !bijschriften.empty()) &&
        bijschriften != merken::leesBijschriften(origineel_, regel)) {
        merken::zetBijschriften(origineel_, regel, bijschriften);
    }
}

void Markeerder::sluitMerkenAf() {
    const int einde = origineel_.GetTextLength();
    merken::kleurBlok(origineel_, kleurTot_, einde, einde);
    stap_ = Stap::klaar;
    tekst_ = {};
}

/// De eerste regel van een resultaat zegt bij welk bestand het hoort, zodra opnieuw knippen iets anders zou
/// geven.
void Markeerder::meldVeroudering() {
    if (!herkomst_) {
        return;
    }
    const wxString veroudering =
        kern::noemVeroudering(*herkomst_, gezien_->stand.pad, gezien_->stand.teksten, tekst_);
    std::vector<kern::Bijschrift> bijschriften;
    if (!veroudering.empty()) {
        bijschriften.push_back(kern::maakBijschrift(kern::Ernst::waarschuwing, veroudering));
    }
    // Wie boven de eerste regel iets typt schuift het bijschrift mee naar beneden.
    if (bijschriften.empty() || bijschriften != merken::leesBijschriften(aangepast_, 0)) {
        aangepast_.AnnotationClearAll();
        merken::zetBijschriften(aangepast_, 0, bijschriften);
    }
}

void Markeerder::merkResultaat(const kern::Geknipt& geknipt, kern::Herkomst herkomst) {
    merken::wis(aangepast_);
    for (const kern::Regel& vervanging : geknipt.vervangingen) {
        merken::merkVervanging(aangepast_, vervanging);
    }
    herkomst_ = std::move(herkomst);
}

void Markeerder::vergeet() {
    merken::wis(origineel_);
    merken::wis(aangepast_);
    herkomst_.reset();
    gezien_.reset();
    stap_ = Stap::klaar;
}

void Markeerder::herstelStijlen() {
    merken::zetStijlen(origineel_);
    merken::zetStijlen(aangepast_);
}

void Markeerder::volgBreedte() {
    const auto volg = [](VolgEditor& editor, int& breedte) {
        if (editor.GetClientSize().x != breedte) {
            breedte = editor.GetClientSize().x;
            merken::breekOpnieuwAf(editor);
        }
    };
    volg(origineel_, breedteOrigineel_);
    volg(aangepast_, breedteAangepast_);
}
