#include "tests/eind/toegang.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

void Toegang::start() {
    Bediening::start();
    volger_ = std::make_unique<hulp::Kindproces>(schermlezer({"volg"}), omgeving_.werk() / "volgorde",
                                                 omgeving_.werk() / "volger");
    const bool begonnen = hulp::wachtTot([this] { return !volgorde().empty(); });
    ASSERT_TRUE(begonnen) << hulp::leesBestand(omgeving_.werk() / "volger");
    EXPECT_EQ(linkereditor, volgorde().front());
}

std::vector<std::string> Toegang::volgorde() const {
    const std::ifstream bestand(omgeving_.werk() / "volgorde");  // bestaat pas als de volger begint
    std::stringstream tekst;
    tekst << bestand.rdbuf();
    std::vector<std::string> dingen;
    std::string ding;
    while (std::getline(tekst, ding) && !tekst.eof()) {  // een halve regel telt nog niet
        dingen.push_back(ding);
    }
    return dingen;
}

std::string Toegang::ga(const std::string& toetsen) const {
    // Wie te vroeg nog eens drukt, slaat straks iets over; pas wie zo lang wacht weet dat een toets verloren
    // ging.
    constexpr int verlorenMs = 30'000;
    constexpr int keren = 3;
    const std::size_t vooraf = volgorde().size();
    for (int keer = 0; keer < keren; ++keer) {
        druk(toetsen);
        if (hulp::wachtTot([this, vooraf] { return volgorde().size() > vooraf; }, verlorenMs)) {
            return volgorde().back();
        }
    }
    throw std::runtime_error("na " + toetsen + " blijven de toetsen bij " + volgorde().back());
}

void Toegang::gaNaar(const std::string& ding, const std::string& toetsen) const {
    constexpr int rond = 20;
    for (int i = 0; i < rond && volgorde().back() != ding; ++i) {
        ga(toetsen);
    }
    ASSERT_EQ(ding, volgorde().back());
}

void Toegang::kiesPad(const std::string& titel, const std::filesystem::path& pad,
                      const std::string& ding) const {
    typPad(titel, pad);
    EXPECT_TRUE(hulp::wachtTot([this, &ding] { return volgorde().back() == ding; })) << volgorde().back();
}

void Toegang::kiesModus(const std::string& modus) const {
    gaNaar("radio button \"Enkel bestand\"");
    gaNaar("radio button \"" + modus + "\"", "Down");
    druk("space");
    wachtOpBruikbaar(doelVeld);
}

void Toegang::vul(const std::string& veld, const std::string& tekst) const {
    gaNaar(veld);
    vervang(veld, tekst);
}

void Toegang::drukOp(const std::string& knop) const {
    wachtOpBruikbaar(knop);
    gaNaar(knop);
    druk("space");
}
