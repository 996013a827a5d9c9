#include "Knipselaar/kern/knipMal.h"

namespace kern {

KnipMal::KnipMal(const KnipTeksten& teksten)
    : teksten_(teksten),
      markers_({{.begin = MarkerMasker(teksten.beginMarker), .eind = MarkerMasker(teksten.eindMarker)}}),
      vervanging_(teksten.vervangtekst.utf8_string()) {}

}  // namespace kern
