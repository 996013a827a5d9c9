#include "Knipselaar/venster/merken.h"

#include <wx/stc/stc.h>

#include <algorithm>
#include <string>

#include "Knipselaar/kern/regelAfbreking.h"

namespace merken {

namespace {

// De editor nummert merken en kleuringen van tekst apart; de eerste acht kleuringen zijn voor de lexers.
constexpr int merkBlok = 0;
constexpr int merkRand = 1;
constexpr int merkVervangen = 2;
constexpr int kleurBloktekst = 8;
constexpr int kleurVervangtekst = 9;
constexpr int kleurVervangdeel = 10;

constexpr int ondoorzichtig = 255;

/// Het eerste nummer van de drie stijlen van de bijschriften. Voor elke editor hetzelfde: het zijn de enige
/// stijlen die er bij komen.
constexpr int eersteStijl = 256;

/// In de stijlen van een bijschrift betekent 0 het einde; de ernst telt er daarom vanaf 1.
constexpr int stijlverschuiving = eersteStijl - 1;

void maakMerk(wxStyledTextCtrl& editor, int nummer, int vorm, const wxColour& kleur) {
    editor.MarkerDefine(nummer, vorm, kleur, kleur);
}

void maakTekstkleur(wxStyledTextCtrl& editor, int nummer, const wxColour& kleur) {
    editor.IndicatorSetStyle(nummer, wxSTC_INDIC_TEXTFORE);
    editor.IndicatorSetForeground(nummer, kleur);
}

void vul(wxStyledTextCtrl& editor, int kleuring, int begin, int einde) {
    editor.SetIndicatorCurrent(kleuring);
    editor.IndicatorFillRange(begin, einde - begin);
}

void maakLeeg(wxStyledTextCtrl& editor, int kleuring, int begin, int einde) {
    editor.SetIndicatorCurrent(kleuring);
    editor.IndicatorClearRange(begin, einde - begin);
}

/// Of een kleuring van begin tot einde overal of nergens staat, naar wat gevraagd wordt.
bool isOveral(wxStyledTextCtrl& editor, int kleuring, bool gekleurd, int begin, int einde) {
    if (begin >= einde) {
        return true;
    }
    const bool eerste = editor.IndicatorValueAt(kleuring, begin) != 0;
    const int grens = editor.IndicatorEnd(kleuring, begin);
    return eerste == gekleurd && (grens >= einde || grens <= begin);
}

void zetRegelmerken(wxStyledTextCtrl& editor, int regel, int merk) {
    const int anders = (editor.MarkerGet(regel) & alle) ^ merk;
    for (const int nummer : {merkBlok, merkRand, merkVervangen}) {
        const int bit = 1 << nummer;
        if ((anders & bit) == 0) {
            continue;
        }
        if ((merk & bit) != 0) {
            editor.MarkerAdd(regel, nummer);
        } else {
            editor.MarkerDelete(regel, nummer);
        }
    }
}

/// De breedte die een bijschrift onder een regel zonder inspringing heeft; er staat een kader omheen.
int geefBreedte(wxStyledTextCtrl& editor) {
    constexpr int marges = 3;
    int breedte = editor.GetClientSize().x - editor.TextWidth(eersteStijl, "mmm");
    for (int marge = 0; marge < marges; ++marge) {
        breedte -= editor.GetMarginWidth(marge);
    }
    return breedte;
}

}  // namespace

const std::array<Kleurpaar, 3>& geefBijschriftKleuren() {
    static const std::array<Kleurpaar, 3> kleuren{{{wxColour(45, 45, 45), wxColour(232, 236, 240)},
                                                   {wxColour(95, 55, 0), wxColour(255, 243, 205)},
                                                   {wxColour(130, 0, 0), wxColour(255, 225, 225)}}};
    return kleuren;
}

const Kleurpaar& geefBlokKleuren() {
    static const Kleurpaar kleuren{wxColour(85, 50, 0), wxColour(255, 238, 204)};
    return kleuren;
}

const Kleurpaar& geefVervangingKleuren() {
    static const Kleurpaar kleuren{wxColour(0, 70, 30), wxColour(218, 244, 226)};
    return kleuren;
}

void bereidVoor(wxStyledTextCtrl& editor) {
    maakMerk(editor, merkBlok, wxSTC_MARK_BACKGROUND, geefBlokKleuren().achtergrond);
    maakMerk(editor, merkRand, wxSTC_MARK_UNDERLINE, geefBlokKleuren().tekst);
    maakMerk(editor, merkVervangen, wxSTC_MARK_BACKGROUND, geefVervangingKleuren().achtergrond);
    maakTekstkleur(editor, kleurBloktekst, geefBlokKleuren().tekst);
    maakTekstkleur(editor, kleurVervangtekst, geefVervangingKleuren().tekst);
    editor.IndicatorSetStyle(kleurVervangdeel, wxSTC_INDIC_FULLBOX);
    editor.IndicatorSetForeground(kleurVervangdeel, geefVervangingKleuren().achtergrond);
    editor.IndicatorSetUnder(kleurVervangdeel, true);
    editor.IndicatorSetAlpha(kleurVervangdeel, ondoorzichtig);
    editor.IndicatorSetOutlineAlpha(kleurVervangdeel, ondoorzichtig);
    editor.AllocateExtendedStyles(static_cast<int>(geefBijschriftKleuren().size()));
    editor.AnnotationSetStyleOffset(stijlverschuiving);
    zetStijlen(editor);
}

void zetStijlen(wxStyledTextCtrl& editor) {
    const wxFont lettertype = editor.StyleGetFont(wxSTC_STYLE_DEFAULT);
    int stijl = eersteStijl;
    for (const Kleurpaar& kleuren : geefBijschriftKleuren()) {
        editor.StyleSetFont(stijl, lettertype);
        editor.StyleSetForeground(stijl, kleuren.tekst);
        editor.StyleSetBackground(stijl, kleuren.achtergrond);
        ++stijl;
    }
}

void wis(wxStyledTextCtrl& editor) {
    for (const int merk : {merkBlok, merkRand, merkVervangen}) {
        editor.MarkerDeleteAll(merk);
    }
    for (const int kleuring : {kleurBloktekst, kleurVervangtekst, kleurVervangdeel}) {
        maakLeeg(editor, kleuring, 0, editor.GetTextLength());
    }
    editor.AnnotationClearAll();
    toonBijschriften(editor, false);
}

void toonBijschriften(wxStyledTextCtrl& editor, bool zichtbaar) {
    const int vorm = zichtbaar ? wxSTC_ANNOTATION_BOXED : wxSTC_ANNOTATION_HIDDEN;
    if (editor.AnnotationGetVisible() != vorm) {
        editor.AnnotationSetVisible(vorm);
        // Dat er nu meer of minder regels te zien zijn ziet de schuifbalk niet vanzelf. De eerste regel is
        // altijd te zien; die laten zien rekent alleen de balk opnieuw uit.
        editor.ShowLines(0, 0);
    }
}

void merkRegel(wxStyledTextCtrl& editor, int regel, int merk) {
    zetRegelmerken(editor, regel, merk);
    const bool gekleurd = (merk & blok) != 0;
    const int begin = editor.PositionFromLine(regel);
    const int einde = editor.GetLineEndPosition(regel);
    if (!isOveral(editor, kleurBloktekst, gekleurd, begin, einde)) {
        (gekleurd ? vul : maakLeeg)(editor, kleurBloktekst, begin, einde);
    }
}

void kleurVervanging(wxStyledTextCtrl& editor, std::string_view tekst, const kern::Regel& stuk) {
    const int begin = static_cast<int>(stuk.begin);
    const int einde = static_cast<int>(stuk.eind);
    vul(editor, kleurVervangtekst, begin, einde);
    // Eindigt een vervanging niet met een regeleinde, dan gaat de regel verder met wat er in het origineel na
    // het blok stond.
    const std::string_view vervanging = tekst.substr(0, stuk.eind).substr(stuk.begin);
    if (stuk.begin > 0 && tekst[stuk.begin - 1] != '\n') {
        const std::size_t eerste = std::min(vervanging.find('\n'), vervanging.size());
        vul(editor, kleurVervangdeel, begin, begin + static_cast<int>(eerste));
    }
    if (stuk.eind < tekst.size() && !vervanging.ends_with('\n')) {
        const auto laatste = static_cast<int>(vervanging.size() - (vervanging.rfind('\n') + 1));
        vul(editor, kleurVervangdeel, einde - laatste, einde);
    }
}

void merkVervangregel(wxStyledTextCtrl& editor, int regel) {
    const int begin = editor.PositionFromLine(regel);
    const int volgende = editor.PositionFromLine(regel + 1);
    const int einde = volgende > begin ? volgende : editor.GetTextLength();
    const bool heel = begin < einde && isOveral(editor, kleurVervangtekst, true, begin, einde);
    zetRegelmerken(editor, regel, heel ? vervanging : geen);
}

Bijschrijver::Bijschrijver(wxStyledTextCtrl& editor)
    : editor_(editor), breedte_(geefBreedte(editor)), spatie_(editor.TextWidth(wxSTC_STYLE_DEFAULT, " ")) {}

void Bijschrijver::zet(int regel, const std::vector<kern::Bijschrift>& bijschriften) {
    if (bijschriften.empty()) {
        editor_.AnnotationClearLine(regel);
        return;
    }
    const int inspringing = editor_.GetLineIndentation(regel);
    wxString tekst;
    std::string stijlen;
    for (const kern::Bijschrift& bijschrift : bijschriften) {
        tekst += (tekst.empty() ? "" : "\n") + breekAf(bijschrift.tekst, inspringing);
        stijlen.resize(tekst.utf8_str().length(), static_cast<char>(1 + static_cast<int>(bijschrift.ernst)));
    }
    editor_.AnnotationSetText(regel, tekst);
    editor_.AnnotationSetStyles(regel, stijlen);
}

/// Een bijschrift springt in zoals zijn regel, en heeft in elke ernst hetzelfde lettertype.
const wxString& Bijschrijver::breekAf(const wxString& tekst, int inspringing) {
    const auto [plaats, nieuw] = afgebroken_.try_emplace({inspringing, tekst});
    if (nieuw) {
        plaats->second = kern::breekAf(tekst, [this, inspringing](const wxString& deel) {
            return editor_.TextWidth(eersteStijl, deel) <= breedte_ - inspringing * spatie_;
        });
    }
    return plaats->second;
}

std::vector<kern::Bijschrift> leesBijschriften(const wxStyledTextCtrl& editor, int regel) {
    const wxString tekst = editor.AnnotationGetText(regel);
    const std::string stijlen = editor.AnnotationGetStyles(regel).utf8_string();
    std::vector<kern::Bijschrift> bijschriften;
    for (const kern::HeleRegel& heel : kern::maakHeel(tekst)) {
        const int ernst = heel.begin < stijlen.size() ? stijlen[heel.begin] - 1 : 0;
        bijschriften.push_back({.ernst = static_cast<kern::Ernst>(ernst), .tekst = heel.tekst});
    }
    return bijschriften;
}

void breekOpnieuwAf(wxStyledTextCtrl& editor) {
    Bijschrijver bijschrijver(editor);
    for (int regel = 0; regel < editor.GetLineCount(); ++regel) {
        if (editor.AnnotationGetLines(regel) > 0) {
            bijschrijver.zet(regel, leesBijschriften(editor, regel));
        }
    }
}

}  // namespace merken
