#pragma once

// Zoekt één vaste tekst, snel in broncode en nooit langzamer dan evenredig met wat er te doorzoeken is.

#include <cstddef>
#include <string>
#include <string_view>

namespace kern {

class Zoeker {
  public:
    /// Zoekt niets; elke plaats past.
    Zoeker() = default;

    explicit Zoeker(std::string naald);

    const std::string& geefNaald() const { return naald_; }

    /// De eerste plaats van de naald in het hooi, of npos.
    std::size_t zoek(std::string_view hooi) const;

  private:
    std::string naald_;
    std::size_t zeldzaam_ = 0;  ///< plaats in naald_ van de byte die in broncode het minst voorkomt
};

}  // namespace kern
