// Metingen van de delen van de kern, zodat een latere verandering te beoordelen is.

#include <benchmark/benchmark.h>
#include <wx/mstream.h>

#include <cstdint>
#include <string>

#include "Knipselaar/kern/knipper.h"
#include "Knipselaar/kern/markerMasker.h"
#include "Knipselaar/kern/tekstLezer.h"
#include "Knipselaar/kern/utf8.h"

namespace {

std::string maakTekst(const std::string& regel, std::size_t lengte = 1'000'000) {
    std::string tekst;
    while (tekst.size() < lengte) {
        tekst += regel;
    }
    return tekst;
}

const std::string codeRegel = "    som += buffer->gegevens[(i + 1) % GROOTTE];  // tel op\n";
const std::string accentRegel = "    som += één; // café, naïef, 5 Ω bij 20 °C\n";
const std::string crlfRegel = "    som += buffer->gegevens[(i + 1) % GROOTTE];\r\n";
const std::string latijnRegel =
    "    som += \xE9\xE9n; // caf\xE9, na\xEF"
    "ef bij 20 \xB0"
    "C\n";

void leesRegels(benchmark::State& staat, const std::string& regel) {
    const std::string tekst = maakTekst(regel);
    for (auto _ : staat) {
        wxMemoryInputStream stroom(tekst.data(), tekst.size());
        kern::TekstLezer lezer(stroom);
        for (auto regels = lezer.leesRegels(); !regels.empty(); regels = lezer.leesRegels()) {
            benchmark::DoNotOptimize(regels.data());
        }
    }
    staat.SetBytesProcessed(staat.iterations() * static_cast<int64_t>(tekst.size()));
}

void zoekMarker(benchmark::State& staat, const wxString& marker, const std::string& regel) {
    const std::string tekst = maakTekst(regel);
    const kern::MarkerMasker masker(marker);
    for (auto _ : staat) {
        benchmark::DoNotOptimize(masker.zoekRegel(tekst, 0));
    }
    staat.SetBytesProcessed(staat.iterations() * static_cast<int64_t>(tekst.size()));
}

void keurUtf8(benchmark::State& staat, const std::string& regel) {
    const std::string tekst = maakTekst(regel);
    for (auto _ : staat) {
        benchmark::DoNotOptimize(kern::isSchoneUtf8(tekst));
    }
    staat.SetBytesProcessed(staat.iterations() * static_cast<int64_t>(tekst.size()));
}

void knipBlokken(benchmark::State& staat) {
    const std::string blok =
        maakTekst(codeRegel, 1000) + "//**** Student Begin ****//\ngeheim\n//**** Student Eind ****//\n";
    const std::string tekst = maakTekst(blok);
    const kern::KnipTeksten teksten{"//**** Student Begin ****//", "//**** Student Eind ****//", "werk\n"};
    for (auto _ : staat) {
        benchmark::DoNotOptimize(kern::knipTekst(tekst, teksten));
    }
    staat.SetBytesProcessed(staat.iterations() * static_cast<int64_t>(tekst.size()));
}

}  // namespace

BENCHMARK_CAPTURE(leesRegels, ascii, codeRegel);
BENCHMARK_CAPTURE(leesRegels, utf8, accentRegel);
BENCHMARK_CAPTURE(leesRegels, crlf, crlfRegel);
BENCHMARK_CAPTURE(leesRegels, latijn1, latijnRegel);
BENCHMARK_CAPTURE(zoekMarker, standaard, "//**** Student Begin ****//", codeRegel);
BENCHMARK_CAPTURE(zoekMarker, bijna, "s*o*m*=*b*u*Z", codeRegel);
BENCHMARK_CAPTURE(zoekMarker, vraagteken, "som?+=*tel?o?", codeRegel);
BENCHMARK_CAPTURE(keurUtf8, ascii, codeRegel);
BENCHMARK_CAPTURE(keurUtf8, accenten, accentRegel);
BENCHMARK(knipBlokken);
BENCHMARK_MAIN();
