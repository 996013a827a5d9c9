#include "Knipselaar/venster/markeerder.h"

#include <algorithm>
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
constexpr int regelStuk = 1024;

/// Zoveel regels buiten beeld krijgen ook hun achtergrond. Wie schuift ziet dan nooit een regel zonder.
constexpr int buitenBeeld = 500;

/// Een blok dat nergens eindigt loopt door tot voorbij de laatste regel.
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
            schrijfVerderBij();
        }
    }
    if (stap_ == Stap::klaar) {
        if (const auto regels = kiesRegels(origineel_, gemerktOrigineel_)) {
            merkOrigineel(*regels);
        }
        if (const auto regels = kiesRegels(aangepast_, gemerktAangepast_)) {
            merkAangepast(*regels);
        }
    }
    return stap_ != Stap::klaar;
}

/// De regels die nog een achtergrond nodig hebben: wat te zien is, met een rand eromheen. Niets als die er al
/// is; anders geldt hij daarna als gemerkt.
std::optional<Markeerder::Regels> Markeerder::kiesRegels(wxStyledTextCtrl& editor,
                                                         std::optional<Regels>& gemerkt) {
    const int bovenste = editor.GetFirstVisibleLine();
    const int eerste = editor.DocLineFromVisible(bovenste);
    const int laatste = editor.DocLineFromVisible(bovenste + editor.LinesOnScreen());
    if (gemerkt && gemerkt->begin <= eerste && laatste < gemerkt->einde) {
        return std::nullopt;
    }
    gemerkt = Regels{.begin = std::max(eerste - buitenBeeld, 0), .einde = laatste + 1 + buitenBeeld};
    return Regels{.begin = gemerkt->begin, .einde = std::min(gemerkt->einde, editor.GetLineCount())};
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
    mal_.emplace(stand.teksten);
    ontleder_.emplace(mal_->geefMarkers(), [this](const kern::Blok& blok) { blokken_.push_back(blok); });
    ontleedTot_ = 0;
    stap_ = Stap::ontleden;
}

void Markeerder::ontleedVerder() {
    const std::string_view rest = std::string_view(tekst_).substr(ontleedTot_);
    const std::size_t grens = rest.find('\n', ontleedStuk);
    const std::size_t einde = grens == std::string_view::npos ? rest.rfind('\n') : grens;
    if (einde == std::string_view::npos) {
        ontleder_->neemStaart(rest);
        sluitOntledingAf();
        return;
    }
    ontleder_->neem(rest.substr(0, einde + 1));
    ontleedTot_ += einde + 1;
}

void Markeerder::sluitOntledingAf() {
    kern::Bevindingen bevindingen = ontleder_->maakAf();
    bevindingen_ = std::move(bevindingen.lijst);
    if (bevindingen.open > 0) {
        blokken_.push_back(
            maakOpenBlok(bevindingen.open, static_cast<std::size_t>(origineel_.GetLineCount())));
    }
    meldVeroudering();
    tekst_ = {};
    bijgeschreven_ = 0;
    bevinding_ = 0;
    gemerktOrigineel_.reset();
    gemerktAangepast_.reset();
    stap_ = Stap::bijschrijven;
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
    if (bijschriften != merken::leesBijschriften(aangepast_, 0)) {
        aangepast_.AnnotationClearAll();
        merken::Bijschrijver(aangepast_).zet(0, bijschriften);
    }
    merken::toonBijschriften(aangepast_, !bijschriften.empty());
}

void Markeerder::schrijfVerderBij() {
    const int aantal = heeftBijschriften_ || !bevindingen_.empty() ? origineel_.GetLineCount() : 0;
    merken::Bijschrijver bijschrijver(origineel_);
    for (int teller = 0; teller < regelStuk && bijgeschreven_ < aantal; ++teller, ++bijgeschreven_) {
        schrijfBij(bijgeschreven_, bijschrijver);
    }
    if (bijgeschreven_ == aantal) {
        heeftBijschriften_ = !bevindingen_.empty();
        merken::toonBijschriften(origineel_, heeftBijschriften_);
        stap_ = Stap::klaar;
    }
}

void Markeerder::schrijfBij(int regel, merken::Bijschrijver& bijschrijver) {
    std::vector<kern::Bijschrift> bijschriften;
    const auto nummer = static_cast<std::size_t>(regel) + 1;
    for (; bevinding_ < bevindingen_.size() && bevindingen_[bevinding_].regel == nummer; ++bevinding_) {
        bijschriften.push_back(kern::beschrijf(bevindingen_[bevinding_]));
    }
    const bool heeft = origineel_.AnnotationGetLines(regel) > 0;
    if ((heeft || !bijschriften.empty()) && bijschriften != merken::leesBijschriften(origineel_, regel)) {
        bijschrijver.zet(regel, bijschriften);
        heeftBijschriften_ = true;
    }
}

void Markeerder::merkOrigineel(const Regels& regels) {
    auto blok =
        std::lower_bound(blokken_.begin(), blokken_.end(), static_cast<std::size_t>(regels.begin) + 1,
                         [](const kern::Blok& een, std::size_t nummer) { return een.eindNummer < nummer; });
    for (int regel = regels.begin; regel < regels.einde; ++regel) {
        const auto nummer = static_cast<std::size_t>(regel) + 1;
        if (blok == blokken_.end() || nummer < blok->beginNummer) {
            merken::merkRegel(origineel_, regel, merken::geen);
            continue;
        }
        const bool isRand = nummer == blok->beginNummer || nummer == blok->eindNummer;
        merken::merkRegel(origineel_, regel, merken::blok | (isRand ? merken::rand : merken::geen));
        if (nummer == blok->eindNummer) {
            ++blok;
        }
    }
}

void Markeerder::merkAangepast(const Regels& regels) {
    for (int regel = regels.begin; regel < regels.einde; ++regel) {
        merken::merkVervangregel(aangepast_, regel);
    }
}

void Markeerder::wisOrigineel() {
    merken::wis(origineel_);
    heeftBijschriften_ = false;
    gezien_.reset();
    stap_ = Stap::klaar;
}

void Markeerder::zetResultaat(const kern::Geknipt& geknipt, kern::Herkomst herkomst) {
    wisResultaat();
    aangepast_.vervang(geknipt.tekst);
    for (const kern::Regel& vervanging : geknipt.vervangingen) {
        merken::kleurVervanging(aangepast_, geknipt.tekst, vervanging);
    }
    herkomst_ = std::move(herkomst);
}

void Markeerder::wisResultaat() {
    merken::wis(aangepast_);
    herkomst_.reset();
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
