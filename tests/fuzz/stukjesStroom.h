#pragma once

// Een stroom die haar tekst in stukjes geeft. Read maakt daar, anders dan bij andere stromen, geen volle
// blokken van: de grenzen van de stukjes worden zo de blokgrenzen van wie eruit leest.

#include <wx/stream.h>

#include <cstddef>
#include <string_view>

namespace fuzz {

class StukjesStroom : public wxInputStream {
  public:
    /// @param inhoud    moet langer leven dan de stroom.
    /// @param grootten  de grootte van elk stukje, als byte en een byte meer; wie op is begint vooraan. Het
    ///                  eerste stukje heeft altijd minstens de vier bytes van een merkteken.
    StukjesStroom(std::string_view inhoud, std::string_view grootten) : rest_(inhoud), grootten_(grootten) {}

    wxInputStream& Read(void* buffer, size_t lengte) override;

  protected:
    size_t OnSysRead(void* buffer, size_t lengte) override;

  private:
    std::size_t neemGrootte();

    std::string_view rest_;
    std::string_view grootten_;
    std::size_t beurt_ = 0;
};

}  // namespace fuzz
