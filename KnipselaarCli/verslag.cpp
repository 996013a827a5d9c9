#include "KnipselaarCli/verslag.h"

#include <array>
#include <cstdio>

#include "Knipselaar/kern/utf8.h"
#include "KnipselaarCli/leesbaar.h"

namespace cli {

namespace {

const char* noemStatus(const Taak& taak, const Uitslag& uitslag, bool geschreven) {
    switch (uitslag.status) {
        case Status::geknipt:
            return geschreven ? "geknipt" : "in orde";
        case Status::ongewijzigd:
            return "ongewijzigd";
        case Status::overgenomen:
            return taak.handeling == Handeling::legLink ? "link" : "overgenomen";
        case Status::gelaten:
            return "gelaten";
        case Status::tegengehouden:
            return "fout";
        case Status::mislukt:
            break;
    }
    return "mislukt";
}

/// Een aantal met zijn woord, in het enkelvoud als het er één is.
std::string noem(std::size_t aantal, const char* een, const char* meer) {
    return std::to_string(aantal) + " " + (aantal == 1 ? een : meer);
}

std::string noemBestanden(std::size_t aantal) {
    return noem(aantal, "bestand", "bestanden");
}

std::string noemWaarschuwingen(std::size_t aantal) {
    return noem(aantal, "waarschuwing", "waarschuwingen");
}

std::size_t tel(const Uitslag& uitslag, Ernst ernst) {
    std::size_t aantal = 0;
    for (const Melding& melding : uitslag.meldingen) {
        aantal += melding.ernst == ernst ? 1 : 0;
    }
    return aantal;
}

std::string droogRegel(const Taak& taak, const Uitslag& uitslag) {
    std::string regel = maakLeesbaar(taak.bron);
    if (!taak.doel.empty() && taak.doel != taak.bron) {
        regel += " -> " + maakLeesbaar(taak.doel);
    }
    switch (uitslag.status) {
        case Status::overgenomen:
            return regel + (taak.handeling == Handeling::legLink ? ": gaat als link mee\n" : ": gaat mee\n");
        case Status::tegengehouden:
            return regel + ": wordt niet geknipt, " + noem(tel(uitslag, Ernst::fout), "fout", "fouten") +
                   "\n";
        case Status::mislukt:
            return regel + ": lukt niet\n";
        default:
            return regel + ": " + noem(uitslag.blokken, "blok", "blokken") + ", " +
                   noem(uitslag.regelsErin, "regel", "regels") + " erin, " +
                   std::to_string(uitslag.regelsEruit) + " eruit, " +
                   noemWaarschuwingen(tel(uitslag, Ernst::waarschuwing)) + "\n";
    }
}

std::string jsonPaar(const char* naam, std::size_t getal) {
    return std::string("\"") + naam + "\": " + std::to_string(getal);
}

std::string jsonPaar(const char* naam, std::string_view tekst) {
    return std::string("\"") + naam + "\": " + naarJson(tekst);
}

std::string jsonRij(const char* naam, const std::string& inhoud) {
    return std::string("  \"") + naam + "\": [" + inhoud + (inhoud.empty() ? "" : "\n  ") + "],\n";
}

}  // namespace

std::string naarJson(std::string_view tekst) {
    std::string uit = "\"";
    const auto schrijfNummer = [&uit](unsigned waarde) {
        std::array<char, 8> nummer{};
        std::snprintf(nummer.data(), nummer.size(), "\\u%04x", waarde);
        uit += nummer.data();
    };
    while (!tekst.empty()) {
        const auto byte = static_cast<unsigned char>(tekst[0]);
        const kern::Utf8Teken teken = kern::leesUtf8(tekst);
        const std::size_t lengte = teken.lengte == 0 ? 1 : teken.lengte;
        if (teken.lengte == 0 || !kern::isSchoneUtf8(tekst.substr(0, lengte)) ||
            (teken.waarde & ~0x7FFU) == 0xD800U) {
            if (byte < 0x80) {
                schrijfNummer(byte);
            } else {
                for (const char deel : tekst.substr(0, lengte)) {
                    schrijfNummer(0xDC00U + static_cast<unsigned char>(deel));
                }
            }
        } else if (byte < 0x20 || byte == 0x7F) {
            schrijfNummer(byte);
        } else {
            if (byte == '"' || byte == '\\') {
                uit += '\\';
            }
            uit += tekst.substr(0, lengte);
        }
        tekst.remove_prefix(lengte);
    }
    return uit + "\"";
}

std::string Verslag::neem(const Taak& taak, const Uitslag& uitslag) {
    tellingen_.fouten += tel(uitslag, Ernst::fout);
    tellingen_.waarschuwingen += tel(uitslag, Ernst::waarschuwing);
    tellingen_.mislukt += uitslag.status == Status::mislukt ? 1 : 0;
    tellingen_.gevonden += uitslag.blokken;
    if (taak.handeling == Handeling::maakDirectory) {
        return {};
    }
    switch (uitslag.status) {
        case Status::geknipt:
            ++tellingen_.geknipt;
            tellingen_.blokken += uitslag.blokken;
            break;
        case Status::ongewijzigd:
            ++tellingen_.ongewijzigd;
            break;
        case Status::overgenomen:
            ++tellingen_.overgenomen;
            break;
        case Status::gelaten:
            ++tellingen_.gelaten;
            break;
        case Status::tegengehouden:
            ++tellingen_.tegengehouden;
            break;
        case Status::mislukt:
            break;
    }
    if (opties_.json) {
        neemInJson(taak, uitslag);
        return {};
    }
    return opties_.opdracht == Opdracht::droog ? droogRegel(taak, uitslag) : uitslag.verschil;
}

void Verslag::neemInJson(const Taak& taak, const Uitslag& uitslag) {
    jsonBestanden_ += jsonBestanden_.empty() ? "\n    {" : ",\n    {";
    jsonBestanden_ += jsonPaar("bron", taak.bron);
    if (!taak.doel.empty()) {
        jsonBestanden_ += ", " + jsonPaar("bestemming", taak.doel);
    }
    jsonBestanden_ += ", " + jsonPaar("status", noemStatus(taak, uitslag, opties_.schrijft()));
    if (taak.handeling == Handeling::knip && uitslag.status != Status::mislukt) {
        jsonBestanden_ += ", " + jsonPaar("blokken", uitslag.blokken);
    }
    if (uitslag.status == Status::geknipt || uitslag.status == Status::ongewijzigd) {
        jsonBestanden_ += ", " + jsonPaar("regels_erin", uitslag.regelsErin) + ", " +
                          jsonPaar("regels_eruit", uitslag.regelsEruit);
    }
    if (!uitslag.storing.empty()) {
        jsonBestanden_ += ", " + jsonPaar("storing", uitslag.storing);
    }
    std::string meldingen;
    for (const Melding& melding : uitslag.meldingen) {
        meldingen += (meldingen.empty() ? "{" : ", {") + jsonPaar("regel", melding.regel) + ", " +
                     jsonPaar("ernst", melding.ernst == Ernst::fout ? "fout" : "waarschuwing") + ", " +
                     jsonPaar("tekst", melding.tekst) + "}";
    }
    jsonBestanden_ += ", \"meldingen\": [" + meldingen + "]}";
}

void Verslag::neem(const Nalezing& nalezing) {
    vondsten_ += nalezing.vondsten.size();
    tellingen_.mislukt += nalezing.storingen.size();
    const auto voegToe = [this](const std::string& inhoud) {
        jsonBewijs_ += (jsonBewijs_.empty() ? "\n    {" : ",\n    {") + inhoud + "}";
    };
    for (const Bewijsvondst& vondst : nalezing.vondsten) {
        voegToe(jsonPaar("bestand", vondst.pad) + ", " + jsonPaar("regel", vondst.regel) + ", " +
                jsonPaar("tekst", vondst.tekst));
    }
    for (const std::string& storing : nalezing.storingen) {
        voegToe(jsonPaar("storing", storing));
    }
}

void Verslag::neem(const Proef& proef) {
    ++proeven_;
    if (proef.uitkomst.fout) {
        ++tellingen_.mislukt;
    } else if (!proef.isGelukt()) {
        ++mislukteProeven_;
    }
    jsonProeven_ += (jsonProeven_.empty() ? "\n    {" : ",\n    {") + jsonPaar("bestand", proef.pad) + ", " +
                    jsonPaar("opdracht", proef.opdracht) + ", " +
                    jsonPaar("afloop", static_cast<std::size_t>(proef.uitkomst.afloop)) + ", " +
                    jsonPaar("uitvoer", proef.uitkomst.uitvoer) + "}";
}

void Verslag::neemOpmerking(const std::string& opmerking, Ernst ernst) {
    opmerkingIsFout_ = opmerkingIsFout_ || ernst == Ernst::fout;
    jsonOpmerkingen_ += (jsonOpmerkingen_.empty() ? "\n    " : ",\n    ") + naarJson(opmerking);
}

Afloop Verslag::geefAfloop() const {
    if (tellingen_.mislukt > 0) {
        return misbruikOfStoring;
    }
    return tellingen_.fouten > 0 || vondsten_ > 0 || mislukteProeven_ > 0 || opmerkingIsFout_ ? foutInInvoer
                                                                                              : goed;
}

std::string Verslag::sluitAf(Afloop afloop) const {
    if (opties_.json) {
        return maakJson(afloop);
    }
    // Een filter in een pijp of een makefile vertelt niet wat het deed.
    const bool zwijgt = opties_.stil || opties_.opdracht == Opdracht::verschil || opties_.naarUitvoer() ||
                        (opties_.uit && opties_.schrijft());
    return zwijgt ? std::string() : maakTellingen(afloop);
}

std::string Verslag::maakJson(Afloop afloop) const {
    return "{\n" + jsonRij("bestanden", jsonBestanden_) +
           (opties_.probeer ? jsonRij("proeven", jsonProeven_) : std::string()) +
           jsonRij("bewijs", jsonBewijs_) + jsonRij("opmerkingen", jsonOpmerkingen_) + "  \"totaal\": {" +
           jsonPaar("geknipt", tellingen_.geknipt) + ", " + jsonPaar("ongewijzigd", tellingen_.ongewijzigd) +
           ", " + jsonPaar("overgenomen", tellingen_.overgenomen) + ", " +
           jsonPaar("blokken", tellingen_.blokken) + ", " + jsonPaar("fouten", tellingen_.fouten) + ", " +
           jsonPaar("waarschuwingen", tellingen_.waarschuwingen) + ", " +
           jsonPaar("mislukt", tellingen_.mislukt) + "},\n  " +
           jsonPaar("afloop", static_cast<std::size_t>(afloop)) + "\n}\n";
}

std::string Verslag::maakTellingen(Afloop afloop) const {
    std::string regel = noemBestanden(tellingen_.geknipt) + (opties_.schrijft() ? " geknipt" : " in orde");
    regel += ", " + noem(tellingen_.blokken, "blok", "blokken");
    if (tellingen_.ongewijzigd > 0) {
        regel += ", " + std::to_string(tellingen_.ongewijzigd) + " zonder blok";
    }
    if (tellingen_.overgenomen > 0) {
        regel += ", " + std::to_string(tellingen_.overgenomen) + " overgenomen";
    }
    if (tellingen_.gelaten > 0) {
        regel += ", " + std::to_string(tellingen_.gelaten) + " gelaten";
    }
    if (tellingen_.tegengehouden > 0) {
        regel += ", " + std::to_string(tellingen_.tegengehouden) + " met fouten";
    }
    if (tellingen_.mislukt > 0) {
        regel += ", " + std::to_string(tellingen_.mislukt) + " mislukt";
    }
    if (tellingen_.waarschuwingen > 0) {
        regel += ", " + noemWaarschuwingen(tellingen_.waarschuwingen);
    }
    if (proeven_ > 0) {
        regel += mislukteProeven_ > 0 ? ", " + noem(mislukteProeven_, "proef", "proeven") + " mislukt"
                                      : ", alle proeven gelukt";
    }
    if (opties_.bewijs) {
        // Bewezen is het alleen als er iets te bewijzen was en alles goed ging.
        regel += vondsten_ > 0    ? ", " + noem(vondsten_, "regel", "regels") + " te veel in de bestemming"
                 : afloop == goed ? ", bewezen schoon"
                                  : ", niet bewezen";
    }
    return regel + "\n";
}

}  // namespace cli
