#include "Knipselaar/kern/batchVerslag.h"

#include <gtest/gtest.h>

#include "tests/hulp/bijschriften.h"

using kern::Afloop;
using kern::Overslag;
using kern::Soort;

namespace {

using Lijst = std::vector<std::string>;

/// Een afloop waar niets aan mankeert.
Afloop maakAfloop(bool terPlaatse, std::size_t blokken) {
    Afloop afloop;
    afloop.terPlaatse = terPlaatse;
    afloop.knip.bronHeelGelezen = true;
    afloop.knip.doelHeelGeschreven = true;
    afloop.knip.bevindingen.blokken = blokken;
    return afloop;
}

Afloop maakVlak(std::size_t blokken = 1) {
    return maakAfloop(false, blokken);
}

Afloop maakTerPlaatse(std::size_t blokken = 1) {
    return maakAfloop(true, blokken);
}

/// Zo komt een bron die niet openging uit de knipper: er is dan ook niets geschreven.
void maakOnleesbaar(Afloop& afloop, const std::string& reden) {
    afloop.knip.bronHeelGelezen = false;
    afloop.knip.doelHeelGeschreven = false;
    afloop.knip.bevindingen.blokken = 0;
    afloop.knip.bronReden = reden;
}

void maakOnschrijfbaar(Afloop& afloop, const std::string& reden) {
    afloop.knip.doelHeelGeschreven = false;
    afloop.knip.doelReden = reden;
}

void verwacht(const Afloop& afloop, const Lijst& bron, const Lijst& bestemming) {
    const auto bijschriften = kern::beschrijfAfloop(afloop);
    EXPECT_EQ(bron, hulp::toon(bijschriften.bron));
    EXPECT_EQ(bestemming, hulp::toon(bijschriften.bestemming));
}

std::string vatSamen(const kern::BatchTelling& telling) {
    return hulp::toon(telling.geefSamenvatting());
}

}  // namespace

TEST(BatchVerslag, ZegtWatEenBestandTerPlaatseNietHield) {
    Afloop afloop = maakTerPlaatse();
    afloop.verlies = {.eigenaar = true, .groep = true};
    verwacht(afloop, {}, {"waarschuwing | Let op: kon eigenaar en groep niet houden"});
    afloop.vervangReden = "bestaat niet";
    verwacht(afloop, {"fout | Fout: niet geknipt; de oplossing staat er nog"},
             {"fout | Fout: niet vervangen (bestaat niet); de oplossing staat er nog"});
}

TEST(BatchVerslag, ZegtNietsOverEenBestandDatGoedGing) {
    for (const std::size_t blokken : {0U, 1U, 7U}) {
        verwacht(maakVlak(blokken), {}, {});
        verwacht(maakTerPlaatse(blokken), {}, {});
    }
}

TEST(BatchVerslag, NoemtInBeideLogboekenEenBronDieNietTeLezenIs) {
    Afloop afloop = maakVlak();
    maakOnleesbaar(afloop, "geen toegang");
    verwacht(afloop, {"fout | Fout: niet te lezen (geen toegang)"},
             {"fout | Fout: niet heel: de bron is niet te lezen"});
    maakOnleesbaar(afloop, "");
    verwacht(afloop, {"fout | Fout: niet te lezen"}, {"fout | Fout: niet heel: de bron is niet te lezen"});
}

TEST(BatchVerslag, NoemtInBeideLogboekenEenBestemmingDieNietTeSchrijvenIs) {
    for (const std::size_t blokken : {0U, 2U}) {
        Afloop afloop = maakVlak(blokken);
        maakOnschrijfbaar(afloop, "de schijf is vol");
        verwacht(afloop, {"fout | Fout: niet geknipt"},
                 {"fout | Fout: niet te schrijven (de schijf is vol)"});
        maakOnschrijfbaar(afloop, "");
        verwacht(afloop, {"fout | Fout: niet geknipt"}, {"fout | Fout: niet te schrijven"});
    }
}

TEST(BatchVerslag, ZegtDatEenBestandNaarZichzelfNuLeegIs) {
    Afloop afloop = maakVlak(0);
    afloop.knip.bevindingen.lijst = {{1, Soort::geenBlok}};
    afloop.naarZichzelf = true;
    const Lijst geleegd{"fout | Fout: naar zichzelf geknipt: het bestand is nu leeg"};
    verwacht(afloop, geleegd, geleegd);
    EXPECT_FALSE(afloop.isGelukt());
    maakOnleesbaar(afloop, "geen toegang");
    verwacht(afloop,
             {"fout | Fout: niet te lezen (geen toegang)",
              "waarschuwing | Let op: geen enkel blok; er valt niets weg"},
             {"fout | Fout: niet heel: de bron is niet te lezen"});
}

TEST(BatchVerslag, NoemtAllesWatErMisging) {
    Afloop vlak = maakVlak();
    maakOnleesbaar(vlak, "bestaat niet");
    maakOnschrijfbaar(vlak, "is een directory");
    verwacht(vlak, {"fout | Fout: niet te lezen (bestaat niet)"},
             {"fout | Fout: niet heel: de bron is niet te lezen",
              "fout | Fout: niet te schrijven (is een directory)"});

    Afloop terPlaatse = maakTerPlaatse();
    maakOnleesbaar(terPlaatse, "geen toegang");
    terPlaatse.tijdelijkReden = "de schijf is vol";
    maakOnschrijfbaar(terPlaatse, "bestaat niet");
    verwacht(terPlaatse, {"fout | Fout: niet te lezen (geen toegang); de oplossing staat er nog"},
             {"fout | Fout: niet geknipt: niet te lezen; de oplossing staat er nog",
              "fout | Fout: geen tijdelijk bestand te maken (de schijf is vol); de oplossing staat er nog"});
}

TEST(BatchVerslag, ZegtTerPlaatseDatDeOplossingErNogStaat) {
    Afloop onleesbaar = maakTerPlaatse();
    maakOnleesbaar(onleesbaar, "geen toegang");
    verwacht(onleesbaar, {"fout | Fout: niet te lezen (geen toegang); de oplossing staat er nog"},
             {"fout | Fout: niet geknipt: niet te lezen; de oplossing staat er nog"});

    Afloop tijdelijk = maakTerPlaatse();
    tijdelijk.tijdelijkReden = "geen toegang";
    maakOnschrijfbaar(tijdelijk, "bestaat niet");
    verwacht(tijdelijk, {"fout | Fout: niet geknipt; de oplossing staat er nog"},
             {"fout | Fout: geen tijdelijk bestand te maken (geen toegang); de oplossing staat er nog"});

    Afloop onschrijfbaar = maakTerPlaatse(3);
    maakOnschrijfbaar(onschrijfbaar, "de schijf is vol");
    verwacht(
        onschrijfbaar, {"fout | Fout: niet geknipt; de oplossing staat er nog"},
        {"fout | Fout: tijdelijk bestand niet te schrijven (de schijf is vol); de oplossing staat er nog"});

    Afloop gebleven = maakTerPlaatse();
    gebleven.vervangReden = "geen toegang";
    verwacht(gebleven, {"fout | Fout: niet geknipt; de oplossing staat er nog"},
             {"fout | Fout: niet vervangen (geen toegang); de oplossing staat er nog"});
}

TEST(BatchVerslag, ZegtDatNietVanEenBestandZonderOplossing) {
    Afloop tijdelijk = maakTerPlaatse(0);
    tijdelijk.tijdelijkReden = "geen toegang";
    verwacht(tijdelijk, {"fout | Fout: niet geknipt"},
             {"fout | Fout: geen tijdelijk bestand te maken (geen toegang)"});

    Afloop onschrijfbaar = maakTerPlaatse(0);
    maakOnschrijfbaar(onschrijfbaar, "");
    verwacht(onschrijfbaar, {"fout | Fout: niet geknipt"},
             {"fout | Fout: tijdelijk bestand niet te schrijven"});

    Afloop gebleven = maakTerPlaatse(0);
    gebleven.vervangReden = "geen toegang";
    verwacht(gebleven, {"fout | Fout: niet geknipt"}, {"fout | Fout: niet vervangen (geen toegang)"});
}

TEST(BatchVerslag, ZegtDatNietVanWatGeenBestandIs) {
    Afloop afloop = maakTerPlaatse();
    maakOnleesbaar(afloop, "is geen gewoon bestand");
    afloop.knip.bronBestaat = false;
    verwacht(afloop, {"fout | Fout: niet te lezen (is geen gewoon bestand)"},
             {"fout | Fout: niet geknipt: niet te lezen"});
}

TEST(BatchVerslag, NoemtDeMarkersBijDeBronEnTeltDeFoutenBijDeBestemming) {
    for (Afloop afloop : {maakVlak(2), maakTerPlaatse(2)}) {
        afloop.knip.bevindingen.lijst = {{.regel = 2, .soort = Soort::zonderBegin},
                                         {.regel = 4, .soort = Soort::leegBlok},
                                         {.regel = 9, .soort = Soort::zonderEind}};
        verwacht(afloop,
                 {"fout | Fout: regel 2: eind zonder begin: blijft staan",
                  "waarschuwing | Let op: regel 4: leeg blok: geen vervangingstekst",
                  "fout | Fout: regel 9: begin zonder eind: alles hierna valt weg"},
                 {"fout | Fout: 2 fouten in de markers; zie links"});
    }
    Afloop een = maakVlak();
    een.knip.bevindingen.lijst = {{.regel = 9, .soort = Soort::zonderEind}};
    verwacht(een, {"fout | Fout: regel 9: begin zonder eind: alles hierna valt weg"},
             {"fout | Fout: 1 fout in de markers; zie links"});
}

TEST(BatchVerslag, HoudtWaarschuwingenBijDeBron) {
    Afloop afloop = maakVlak(0);
    afloop.knip.bevindingen.lijst = {{.regel = 1, .soort = Soort::geenBlok},
                                     {.regel = 3, .soort = Soort::bijnaBegin}};
    verwacht(afloop,
             {"waarschuwing | Let op: geen enkel blok; er valt niets weg",
              "waarschuwing | Let op: regel 3: bijna een beginmarker: telt niet"},
             {});
}

TEST(BatchVerslag, NoemtEenStoringVoorDeMarkers) {
    Afloop afloop = maakVlak();
    maakOnschrijfbaar(afloop, "is een directory");
    afloop.knip.bevindingen.lijst = {{.regel = 9, .soort = Soort::zonderEind}};
    verwacht(afloop,
             {"fout | Fout: niet geknipt", "fout | Fout: regel 9: begin zonder eind: alles hierna valt weg"},
             {"fout | Fout: niet te schrijven (is een directory)",
              "fout | Fout: 1 fout in de markers; zie links"});
    Afloop gebleven = maakTerPlaatse();
    gebleven.vervangReden = "geen toegang";
    gebleven.knip.bevindingen.lijst = {{.regel = 9, .soort = Soort::zonderEind}};
    verwacht(gebleven,
             {"fout | Fout: niet geknipt; de oplossing staat er nog",
              "fout | Fout: regel 9: begin zonder eind: alles hierna valt weg"},
             {"fout | Fout: niet vervangen (geen toegang); de oplossing staat er nog",
              "fout | Fout: 1 fout in de markers; zie links"});
}

TEST(BatchVerslag, NoemtHoeveelErNietMeerInDeLijstPasten) {
    Afloop afloop = maakVlak();
    afloop.knip.bevindingen.lijst = {{.regel = 2, .soort = Soort::zonderBegin}};
    afloop.knip.bevindingen.verzwegen = 12;
    afloop.knip.bevindingen.verzwegenFouten = 5;
    verwacht(afloop,
             {"fout | Fout: regel 2: eind zonder begin: blijft staan",
              "fout | Fout: en nog 12 keer iets met de markers"},
             {"fout | Fout: 6 fouten in de markers; zie links"});
    afloop.knip.bevindingen.lijst = {{.regel = 2, .soort = Soort::leegBlok}};
    afloop.knip.bevindingen.verzwegenFouten = 0;
    verwacht(afloop,
             {"waarschuwing | Let op: regel 2: leeg blok: geen vervangingstekst",
              "waarschuwing | Let op: en nog 12 keer iets met de markers"},
             {});
}

TEST(BatchVerslag, ZegtWaaromEenBestandOvergeslagenIs) {
    EXPECT_EQ((Lijst{}), hulp::toon(kern::beschrijfOverslag(Overslag::nietGekozen)));
    EXPECT_EQ((Lijst{"waarschuwing | Let op: de bestemming is dit bestand zelf"}),
              hulp::toon(kern::beschrijfOverslag(Overslag::bronZelf)));
    EXPECT_EQ((Lijst{"opmerking | onder een andere naam al geknipt"}),
              hulp::toon(kern::beschrijfOverslag(Overslag::alGeweest)));
    EXPECT_EQ((Lijst{"waarschuwing | Let op: wijst buiten de directory; blijft zoals het is"}),
              hulp::toon(kern::beschrijfOverslag(Overslag::buitenBoom)));
}

TEST(BatchTelling, WaarschuwtAlsErNietsGekniptIs) {
    EXPECT_EQ(
        "waarschuwing | Let op: 0 bestanden geknipt met 0 blokken, 0 zonder enig blok, 0 overgeslagen, "
        "0 mislukt",
        vatSamen({}));
    kern::BatchTelling telling;
    telling.neem(maakVlak(0));
    telling.neemOvergeslagen();
    telling.neemOvergeslagen();
    EXPECT_EQ(
        "waarschuwing | Let op: 0 bestanden geknipt met 0 blokken, 1 zonder enig blok, 2 overgeslagen, "
        "0 mislukt",
        vatSamen(telling));
}

TEST(BatchTelling, TeltElkeAfloopApart) {
    kern::BatchTelling telling;
    telling.neem(maakVlak(1));
    EXPECT_EQ("opmerking | 1 bestand geknipt met 1 blok, 0 zonder enig blok, 0 overgeslagen, 0 mislukt",
              vatSamen(telling));
    telling.neem(maakTerPlaatse(3));
    EXPECT_EQ("opmerking | 2 bestanden geknipt met 4 blokken, 0 zonder enig blok, 0 overgeslagen, 0 mislukt",
              vatSamen(telling));
    telling.neem(maakTerPlaatse(0));
    telling.neem(maakVlak(0));
    telling.neemOvergeslagen();
    EXPECT_EQ("opmerking | 2 bestanden geknipt met 4 blokken, 2 zonder enig blok, 1 overgeslagen, 0 mislukt",
              vatSamen(telling));
    Afloop mislukt = maakVlak(5);
    maakOnschrijfbaar(mislukt, "");
    telling.neem(mislukt);
    EXPECT_EQ("fout | Fout: 2 bestanden geknipt met 4 blokken, 2 zonder enig blok, 1 overgeslagen, 1 mislukt",
              vatSamen(telling))
        << "de blokken van wat mislukte zijn niet geknipt";
}

TEST(BatchTelling, NoemtElkeStoringMislukt) {
    Afloop onleesbaar = maakVlak();
    maakOnleesbaar(onleesbaar, "");
    Afloop onschrijfbaar = maakVlak();
    maakOnschrijfbaar(onschrijfbaar, "");
    Afloop tijdelijk = maakTerPlaatse();
    tijdelijk.tijdelijkReden = "geen toegang";
    Afloop gebleven = maakTerPlaatse();
    gebleven.vervangReden = "geen toegang";
    for (const Afloop& afloop : {onleesbaar, onschrijfbaar, tijdelijk, gebleven}) {
        kern::BatchTelling telling;
        telling.neem(afloop);
        telling.neem(afloop);
        EXPECT_EQ(
            "fout | Fout: 0 bestanden geknipt met 0 blokken, 0 zonder enig blok, 0 overgeslagen, 2 mislukt",
            vatSamen(telling));
    }
}

TEST(BatchTelling, NoemtFoutenInDeMarkers) {
    const std::string metFouten =
        "fout | Fout: 2 bestanden geknipt met 2 blokken, 0 zonder enig blok, 0 overgeslagen, 0 mislukt; er "
        "zijn fouten in de markers";
    Afloop fout = maakVlak();
    fout.knip.bevindingen.lijst = {{.regel = 2, .soort = Soort::leegBlok},
                                   {.regel = 4, .soort = Soort::zonderEind}};
    kern::BatchTelling telling;
    telling.neem(fout);
    telling.neem(maakVlak());
    EXPECT_EQ(metFouten, vatSamen(telling));

    Afloop verzwegen = maakVlak();
    verzwegen.knip.bevindingen.verzwegen = 1;
    verzwegen.knip.bevindingen.verzwegenFouten = 1;
    kern::BatchTelling stil;
    stil.neem(verzwegen);
    stil.neem(maakVlak());
    EXPECT_EQ(metFouten, vatSamen(stil));
}

TEST(BatchTelling, NoemtWaarschuwingenGeenFout) {
    Afloop afloop = maakVlak();
    afloop.knip.bevindingen.lijst = {{.regel = 2, .soort = Soort::leegBlok}};
    afloop.knip.bevindingen.verzwegen = 3;
    kern::BatchTelling telling;
    telling.neem(afloop);
    EXPECT_EQ("opmerking | 1 bestand geknipt met 1 blok, 0 zonder enig blok, 0 overgeslagen, 0 mislukt",
              vatSamen(telling));
}
