// Het Over-venster en de statistiek van het gebouwde programma, van buiten gezien.

#include <algorithm>
#include <ctime>
#include <utility>

#include "tests/eind/bediening.h"

namespace {

class OverEnStatistiek : public Bediening {
  protected:
    static constexpr const char* overVenster = "Knipselaar.|.Knipselaar";

    /// Een tijdstip uit de opslag, in een vorm die als tekst te vergelijken is.
    std::string leesMoment(const std::string& soort) const {
        return leesSleutel("Statistiek", soort + "Datum") + " " + leesSleutel("Statistiek", soort + "Tijd");
    }

    /// De plaatselijke tijd in dezelfde vorm.
    static std::string nu() {
        const std::time_t moment = std::time(nullptr);
        std::tm delen{};
        localtime_r(&moment, &delen);
        char tekst[32];
        std::strftime(tekst, sizeof(tekst), "%Y-%m-%d %H:%M:%S", &delen);
        return tekst;
    }

    static void wachtOpVolgendeSeconde() {
        const std::string toen = nu();
        EXPECT_TRUE(hulp::wachtTot([&toen] { return nu() != toen; }));
    }

    void sluitAf() {
        druk("ctrl+q");
        EXPECT_EQ(0, wachtOpEinde());
        EXPECT_EQ("", fouten());
    }

    /// De regels van de opslag zonder de statistiek, die bij elke run anders is.
    std::vector<std::string> leesInstellingen() const {
        std::istringstream opslag(hulp::leesBestand(omgeving_.opslag()));
        std::vector<std::string> regels;
        std::string regel;
        while (std::getline(opslag, regel)) {
            if (!regel.starts_with("Start") && !regel.starts_with("Stop")) {
                regels.push_back(regel);
            }
        }
        return regels;
    }

    /// Een afdruk van een venster dat niet meer verandert: vlak na het openen lopen er nog overgangen.
    static std::string kiekjeInRust(const std::string& venster) {
        std::string beeld;
        int gelijk = 0;
        EXPECT_TRUE(hulp::wachtTot([&] {
            const std::string vorige = std::exchange(beeld, kiekje(venster));
            gelijk = beeld == vorige && !beeld.empty() ? gelijk + 1 : 0;
            return gelijk == 5;
        }));
        return beeld;
    }

    /// Opent het Over-venster; geeft zijn nummer.
    std::string openOver() const {
        wachtOpVenster(hoofdvenster);
        druk("ctrl+k");
        return vensterNummer(overVenster);
    }
};

/// Hoeveel verschillende punten een afdruk heeft, van drie bytes elk.
std::size_t telKleuren(const std::string& afdruk) {
    std::vector<std::string> punten;
    for (std::size_t plaats = 0; plaats + 3 <= afdruk.size(); plaats += 3) {
        punten.push_back(afdruk.substr(plaats, 3));
    }
    std::sort(punten.begin(), punten.end());
    return static_cast<std::size_t>(std::unique(punten.begin(), punten.end()) - punten.begin());
}

}  // namespace

TEST_F(OverEnStatistiek, BewaartAlleenDeLaatsteRun) {
    std::string vorigeStop;
    for (int run = 0; run < 2; ++run) {
        const std::string voorStart = nu();
        start();
        const std::string naStart = nu();
        wachtOpVolgendeSeconde();
        const std::string voorStop = nu();
        sluitAf();
        const std::string naStop = nu();
        EXPECT_LE(voorStart, leesMoment("Start")) << run;
        EXPECT_GE(naStart, leesMoment("Start")) << run;
        EXPECT_LE(voorStop, leesMoment("Stop")) << run;
        EXPECT_GE(naStop, leesMoment("Stop")) << run;
        EXPECT_LT(leesMoment("Start"), leesMoment("Stop")) << run;
        EXPECT_LT(vorigeStop, leesMoment("Start")) << run;
        vorigeStop = leesMoment("Stop");
        wachtOpVolgendeSeconde();
    }
    const std::string opslag = hulp::leesBestand(omgeving_.opslag());
    for (const char* sleutel : {"StartDatum=", "StartTijd=", "StopDatum=", "StopTijd="}) {
        EXPECT_EQ(opslag.find(sleutel), opslag.rfind(sleutel)) << sleutel << " staat er eenmaal";
    }
}

TEST_F(OverEnStatistiek, SchrijftDeTijdVanDeTijdzone) {
    // Een tijdzone waarin het nu op elk uur van de dag een andere datum is dan in Greenwich.
    const bool isMiddag = std::time(nullptr) / 3600 % 24 >= 12;
    setenv("TZ", isMiddag ? "XYZ-14" : "XYZ12", 1);
    tzset();
    const std::string voorStart = nu();
    start();
    sluitAf();
    EXPECT_LE(voorStart, leesMoment("Start"));
    EXPECT_GE(nu(), leesMoment("Stop"));
    setenv("TZ", "UTC", 1);
    tzset();
    EXPECT_NE(nu().substr(0, 10), leesMoment("Start").substr(0, 10)) << "in Greenwich is het een andere dag";
}

TEST_F(OverEnStatistiek, ToontHetOverVensterTotEscape) {
    start();
    EXPECT_FALSE(isZichtbaar(overVenster));
    const std::string nummer = openOver();
    EXPECT_TRUE(hulp::wachtTot([&nummer] { return telKleuren(kiekje(nummer)) > 16; }))
        << "letters op een achtergrond";
    EXPECT_TRUE(isZichtbaar(hoofdvenster));
    druk("Escape");
    wachtTotWeg(overVenster);
    wachtOpVenster(hoofdvenster);
    openOver();
    druk("Escape");
    wachtTotWeg(overVenster);
    wachtOpVenster(hoofdvenster);
    sluitAf();
}

TEST_F(OverEnStatistiek, LaatVensterEnOpslagZoalsZeWaren) {
    start();
    sluitAf();
    const std::vector<std::string> vooraf = leesInstellingen();
    EXPECT_FALSE(vooraf.empty());
    start();
    const std::string venster = vensterNummer(hoofdvenster);
    wachtOpBeginmodus();
    // Op een knop knippert niets, en wie er met een toets komt ziet er meteen een rand om.
    gaMetKlikNaar("radio button \"Enkel bestand\"");
    druk("Tab");
    const std::string beeld = kiekjeInRust(venster);
    openOver();
    druk("Escape");
    wachtTotWeg(overVenster);
    EXPECT_EQ(venster, vensterNummer(hoofdvenster));
    EXPECT_TRUE(hulp::wachtTot([&] { return kiekje(venster) == beeld; })) << "het venster is veranderd";
    sluitAf();
    EXPECT_EQ(vooraf, leesInstellingen());
}

TEST_F(OverEnStatistiek, SluitOokMetHetOverVensterOpen) {
    start();
    const std::string hoofd = vensterNummer(hoofdvenster);
    openOver();
    voerUit({"xdotool", "windowactivate", "--sync", hoofd});
    wachtOpVenster(hoofdvenster);
    sluitAf();
    EXPECT_NE("(ontbreekt)", leesSleutel("Statistiek", "StopTijd"));
}
