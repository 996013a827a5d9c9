// Meet in de hoofdlus van de echte toepassing hoe lang een knipbeurt duurt, logboeken inbegrepen. Schrijft
// per meting een regel "naam microseconden".
//
//   venstermeter editor BESTAND      knippen van editor naar editor, en ter vergelijking de uitkomst in één
//   keer
//                                    in de editor zetten
//   venstermeter merken BESTAND      een tekst in de editor zetten, en dan merken wat een knipbeurt ervan
//   weghaalt venstermeter directory BRON DOEL venstermeter boom BOOM

#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "tests/hulp/schermomgeving.h"
#include "tests/venster/vensterTest.h"

namespace {

void meet(const char* naam, const std::function<void()>& handeling) {
    const auto begin = std::chrono::steady_clock::now();
    handeling();
    const auto duur = std::chrono::steady_clock::now() - begin;
    std::printf("%s %lld\n", naam,
                static_cast<long long>(std::chrono::duration_cast<std::chrono::microseconds>(duur).count()));
}

void geefKnipopdracht(ParserVenster& venster) {
    wxCommandEvent event(wxEVT_MENU, wxID_REPLACE);
    venster.ProcessWindowEvent(event);
}

void meetEditor(ParserVenster& venster, const std::string& bestand) {
    auto* origineel = venster.*&Inzage::origineelEditor;
    auto* aangepast = venster.*&Inzage::aangepastEditor;
    venster.zetCStijl(origineel);
    venster.zetCStijl(aangepast);
    origineel->LoadFile(wxString::FromUTF8(bestand));
    for (int ronde = 0; ronde < 5; ++ronde) {
        // Wat er van het vorige nog te tekenen en te merken ligt, hoort niet bij deze beurt.
        laatLopen();
        meet("knip", [&venster] { geefKnipopdracht(venster); });
        const wxString uitkomst = aangepast->GetText();
        meet("zet", [aangepast, &uitkomst] { aangepast->SetText(uitkomst); });
    }
}

void meetMerken(ParserVenster& venster, const std::string& bestand) {
    auto* origineel = venster.*&Inzage::origineelEditor;
    venster.zetCStijl(origineel);
    origineel->LoadFile(wxString::FromUTF8(bestand));
    const wxString tekst = origineel->GetText();
    for (int ronde = 0; ronde < 5; ++ronde) {
        meet("zet", [origineel, &tekst] { origineel->SetText(tekst); });
        meet("merk", [&venster] {
            while ((venster.*&Inzage::werkMerkenBij)()) {
            }
        });
    }
}

void meetBatch(ParserVenster& venster, int modus, const std::vector<std::string>& paden) {
    (venster.*&Inzage::parserModeKeuze)->SetSelection(modus);
    venster.*& Inzage::origineelPad = wxString::FromUTF8(paden.front());
    venster.*& Inzage::aangepastPad = wxString::FromUTF8(paden.back());
    meet("batch", [&venster] { geefKnipopdracht(venster); });
}

void meetAlles(const std::vector<std::string>& woorden) {
    auto& venster = *dynamic_cast<ParserVenster*>(wxTheApp->GetTopWindow());
    laatLopenTot([&venster] { return venster.IsShownOnScreen(); });
    // Een gebruiker begint niet voordat het venster er getekend staat.
    bool getekend = false;
    (venster.*&Inzage::origineelEditor)->Bind(wxEVT_STC_PAINTED, [&getekend](wxStyledTextEvent& event) {
        getekend = true;
        event.Skip();
    });
    laatLopenTot([&getekend] { return getekend; });
    laatLopen();
    if (woorden[0] == "editor") {
        meetEditor(venster, woorden[1]);
    } else if (woorden[0] == "merken") {
        meetMerken(venster, woorden[1]);
    } else {
        meetBatch(venster, woorden[0] == "boom" ? 2 : 1, {woorden.begin() + 1, woorden.end()});
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        return 1;
    }
    const std::vector<std::string> woorden(argv + 1, argv + argc);
    const hulp::Schermomgeving omgeving(hulp::Beeldscherm::kaal);
    argc = 1;
    wxSetAssertHandler(nullptr);
    if (!wxEntryStart(argc, argv) || !wxGetApp().CallOnInit()) {
        return 1;
    }
    wxGetApp().CallAfter([&woorden] {
        meetAlles(woorden);
        wxGetApp().GetTopWindow()->Destroy();
    });
    wxGetApp().OnRun();
    wxGetApp().OnExit();
    wxEntryCleanup();
    return 0;
}
