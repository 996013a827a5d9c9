#pragma once

// Of een run mag schrijven waar hij dat van plan is. Alles hier gooit Fout als dat niet mag, en verandert
// niets.

#include <string>
#include <vector>

#include "KnipselaarCli/boom.h"
#include "KnipselaarCli/opties.h"
#include "KnipselaarCli/plan.h"

namespace cli {

/// Of hier een directory staat; een link wordt gevolgd.
bool isDirectory(const std::string& pad);

/// Wat met --naar genoemd is, is een directory of nog niets.
void keurNaar(const std::string& naar);

/// Een directory en de bestemming van --naar zijn niet dezelfde en liggen niet in elkaar.
void keurLigging(const std::string& bron, const std::string& naar);

/// Een directory van de bron kan ergens anders aangekoppeld zijn: dan is aan haar pad niet te zien dat de
/// bestemming erin ligt.
/// @param delen  van de bron.
void keurOmweg(const std::string& bron, const std::vector<Boomdeel>& delen, const std::string& naar);

/// De directory waar dit bestand in komt is er.
void keurOuder(const std::string& pad);

/// Er is op deze plaats te schrijven: in de directory, of in de eerste erboven die er al is. Een lege naam is
/// overal goed.
void keurPlaats(const std::string& doel);

/// Elke bestemming is er nog niet, of mag vervangen worden.
void keurBestemmingen(const Plan& plan, const Opties& opties);

}  // namespace cli
