#include "KnipselaarCli/cliApp.h"

#include "Knipselaar/kern/systeem/onderbreking.h"
#include "KnipselaarCli/fout.h"
#include "KnipselaarCli/melder.h"
#include "KnipselaarCli/opdrachtregel.h"
#include "KnipselaarCli/optielijst.h"
#include "KnipselaarCli/opties.h"
#include "KnipselaarCli/run.h"
#include "KnipselaarCli/verslag.h"

namespace cli {

namespace {

/// Wat een hele run tegenhield. Wie om JSON vroeg krijgt ook dan een verslag.
void meldEinde(const std::string& reden, bool json) {
    Melder melder(false);
    melder.meldRun(reden, Ernst::fout);
    if (!json) {
        return;
    }
    Opties opties;
    opties.json = true;
    Verslag verslag(opties);
    verslag.neemOpmerking(reden, Ernst::fout);
    try {
        melder.schrijf(verslag.sluitAf(misbruikOfStoring));
    } catch (const Fout& fout) {
        melder.meldRun(fout.what(), Ernst::fout);
    }
}

Afloop voerUit(const std::vector<std::string>& woorden) {
    bool json = vraagtJson(woorden);
    try {
        const Opties opties = leesOpties(woorden);
        json = opties.json;
        Melder melder(opties.stil);
        if (opties.opdracht == Opdracht::help) {
            melder.schrijf(maakHulp());
            return goed;
        }
        if (opties.opdracht == Opdracht::versie) {
            melder.schrijf("knipselaar-cli " KNIPSELAAR_VERSIE "\n");
            return goed;
        }
        return voerRunUit(opties, melder);
    } catch (const std::exception& fout) {
        if (!kern::isOnderbroken()) {
            meldEinde(fout.what(), json);
        }
        return misbruikOfStoring;
    }
}

}  // namespace

CliApp::CliApp(std::vector<std::string> woorden)
    : ConsoleApp("knipselaar-cli"), woorden_(std::move(woorden)) {}

int CliApp::OnRun() {
    kern::vangOnderbreking();
    const Afloop afloop = voerUit(woorden_);
    kern::sterfAanOnderbreking();
    return afloop;
}

}  // namespace cli
