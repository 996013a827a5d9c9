#pragma once

// Een batch zonder venster en zonder verslag: knipt alle bestanden in een taal die het programma kent.

#include "Knipselaar/kern/batch.h"
#include "Knipselaar/kern/keuzes.h"

namespace hulp {

class StilleOpdracht : public kern::BatchOpdracht {
  public:
    explicit StilleOpdracht(const kern::KnipTeksten& teksten) : mal_(teksten) {}

    bool isGekozen(const wxFileName& bestand) override {
        constexpr int bekendeTalen = 0;
        return kern::isBestandGekozen(bestand.GetExt(), bekendeTalen);
    }
    kern::KnipUitslag knip(const wxFileName& bron, const wxFileName& bestemming) override {
        return kern::knipBestand(bron, bestemming, mal_);
    }
    void meldOvergeslagen(long /*nummer*/, const wxFileName& /*bestand*/, kern::Overslag /*reden*/) override {
    }
    void meldVerwerkt(long /*nummer*/, const wxFileName& /*bron*/,
                      const wxFileName& /*bestemming*/) override {}
    void meldAfloop(const kern::Afloop& /*afloop*/) override {}

  private:
    kern::KnipMal mal_;
};

}  // namespace hulp
