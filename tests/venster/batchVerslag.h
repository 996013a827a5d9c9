#pragma once

// Wat er onder de regels van beide logboeken staat.

#include <wx/log.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "Knipselaar/venster/merken.h"
#include "tests/hulp/bijschriften.h"
#include "tests/venster/batchVenster.h"

using Regels = std::vector<std::string>;

inline const std::string geenBlok = "waarschuwing | Let op: geen enkel blok; er valt niets weg";
inline const std::string zonderBegin = "fout | Fout: regel 2: eind zonder begin: blijft staan";
inline const std::string zonderEind = "fout | Fout: regel 3: begin zonder eind: alles hierna valt weg";
inline const std::string tweeFouten = "fout | Fout: 2 fouten in de markers; zie links";
inline const std::string metFouten = "x\nEIND\nBEGIN\ny\n";

/// De regels van een logboek, met onder elke regel haar bijschriften. De regel achter het laatste regeleinde
/// hoort erbij.
inline Regels lees(wxStyledTextCtrl* log) {
    Regels regels;
    for (int regel = 0; regel < log->GetLineCount(); ++regel) {
        regels.push_back(log->GetLine(regel).utf8_string());
        for (const std::string& bijschrift : hulp::toon(merken::leesBijschriften(*log, regel))) {
            regels.push_back("^ " + bijschrift);
        }
    }
    return regels;
}

/// De tekst van zulke regels, zonder de bijschriften.
inline std::string geefTekst(const Regels& regels) {
    std::string tekst;
    for (const std::string& regel : regels) {
        tekst += regel.starts_with("^ ") ? "" : regel;
    }
    return tekst;
}

inline void voegToe(Regels& regels, const Regels& bijschriften) {
    for (const std::string& bijschrift : bijschriften) {
        regels.push_back("^ " + bijschrift);
    }
}

/// Wat er met een bestand gebeurt, en wat er in beide logboeken bij hoort te staan.
struct Geval {
    bool overgeslagen = false;
    Regels bron;
    Regels bestemming;
};

class BatchVerslag : public BatchTest {
  protected:
    /// Beide logboeken, nu en nadat het venster aan zijn merken gewerkt heeft.
    void verwacht(const Regels& bronLog, const Regels& doelLog) {
        for (int keer = 0; keer < 2; ++keer) {
            EXPECT_EQ(bronLog, lees(origineel()));
            EXPECT_EQ(doelLog, lees(aangepast()));
            EXPECT_EQ(geefTekst(bronLog), tekstVan(origineel()));
            EXPECT_EQ(geefTekst(doelLog), tekstVan(aangepast()));
            for (const wxStyledTextCtrl* log : {origineel(), aangepast()}) {
                EXPECT_NE(wxSTC_ANNOTATION_HIDDEN, log->AnnotationGetVisible());
            }
            laatLopen();
        }
    }

    void verwachtZonderBijschriften() {
        for (wxStyledTextCtrl* log : {origineel(), aangepast()}) {
            log->SetText("een\ntwee\ndrie\n");
            EXPECT_EQ((Regels{"een\n", "twee\n", "drie\n", ""}), lees(log));
            EXPECT_EQ(wxSTC_ANNOTATION_HIDDEN, log->AnnotationGetVisible());
        }
    }

    /// De kleuren waarin het eerste bijschrift van een regel staat.
    static std::pair<wxColour, wxColour> geefKleuren(wxStyledTextCtrl* log, int regel) {
        const std::string stijlen = log->AnnotationGetStyles(regel).utf8_string();
        const int stijl = log->AnnotationGetStyleOffset() + stijlen.at(0);
        return {log->StyleGetForeground(stijl), log->StyleGetBackground(stijl)};
    }

    /// Een bron en een bestemming met van alles, en wat elk bestand daarvan hoort te krijgen.
    std::map<std::string, Geval> maakMengsel() {
        hulp::maakBoom(bron_, {{"a.c", metBlok + metBlok},
                               {"b.c", "niets\n"},
                               {"c.c", metBlok},
                               {"e.c", metFouten},
                               {"x.txt", metBlok}});
        hulp::maakBoom(doel_, {{"c.c", "/"}});
        return {{"a.c", {}},
                {"b.c", {.bron = {geenBlok}, .bestemming = {}}},
                {"c.c",
                 {.bron = {"fout | Fout: niet geknipt"},
                  .bestemming = {"fout | Fout: niet te schrijven (is een directory)"}}},
                {"e.c", {.bron = {zonderBegin, zonderEind}, .bestemming = {tweeFouten}}},
                {"x.txt", {.overgeslagen = true, .bron = {}, .bestemming = {}}}};
    }

    /// Knipt de directory, en vergelijkt beide logboeken met wat er van elk bestand in hoort te staan.
    void knipDirectoryMet(const std::map<std::string, Geval>& gevallen, const std::string& samenvatting) {
        bronLog_.push_back("Originele dir : " + bronPad() + "\n");
        doelLog_.push_back("Student dir : " + doelPad() + "\n");
        long nummer = 1;
        for (const std::string& naam : hulp::somOp(bron_)) {
            const Geval& geval = gevallen.at(naam);
            const std::string cijfer = std::to_string(nummer);
            if (geval.overgeslagen) {
                bronLog_.push_back("Overgeslagen " + cijfer + ":" + naarTekst(bron_ / naam) + "\n");
            } else {
                bronLog_.push_back("Orig bestand " + cijfer + ":" + naam + "\n");
                doelLog_.push_back("Student bestand " + cijfer + ":" + naam + "\n");
                voegToe(doelLog_, geval.bestemming);
                ++nummer;
            }
            voegToe(bronLog_, geval.bron);
        }
        for (Regels* log : {&bronLog_, &doelLog_}) {
            log->push_back("");
            voegToe(*log, {samenvatting});
        }
        zonderDialoog([this] {
            knipDirectory();
            wxLog::FlushActive();
        });
        verwacht(bronLog_, doelLog_);
        EXPECT_TRUE(origineel()->IsModified());
        EXPECT_TRUE(aangepast()->IsModified());
        hulp::neemBeweringen();
    }

    Regels bronLog_;
    Regels doelLog_;
};
