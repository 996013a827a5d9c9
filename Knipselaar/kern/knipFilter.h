#pragma once

// Het knippen zelf: zegt van elke regel wat ermee gebeurt. De hele toestand is twee vlaggen.
//
//   buiten een blok   gewone regel    houden
//                     beginmarker     weglaten; het blok gaat open
//   binnen een blok   eindmarker      weglaten; het blok gaat dicht
//                     eerste regel    vervangen: hier komt de vervangtekst
//                     volgende regel  weglaten
//
// Buiten een blok telt alleen de beginmarker, binnen alleen de eindmarker; een blok zonder binnenregel
// krijgt dus geen vervangtekst. Regels die na elkaar de marker niet dragen mogen samen als één reeks
// beoordeeld worden: hun lot is gelijk, of de vervangtekst komt in de plaats van allemaal.

namespace kern {

enum class Lot { houden, vervangen, weglaten };

class KnipFilter {
  public:
    /// Of de volgende regel tegen de eindmarker gehouden moet worden in plaats van tegen de beginmarker.
    bool isInBlok() const { return inBlok_; }

    /// Beoordeelt de volgende regel of reeks regels.
    /// @param draagtMarker  de regel past op de marker die nu telt; een reeks draagt hem nooit.
    Lot beoordeel(bool draagtMarker);

  private:
    bool inBlok_ = false;
    bool vervangingOpen_ = true;
};

}  // namespace kern
