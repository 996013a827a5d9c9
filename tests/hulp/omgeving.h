#pragma once

// De directories van één testrun. Tests lopen daardoor naast elkaar en komen nooit aan de bestanden van de
// gebruiker.

#include <filesystem>
#include <string_view>

#include "tests/hulp/bestanden.h"

namespace hulp {

/// Geeft een proces een eigen thuisdirectory en een eigen tijdelijke directory. Eén tegelijk.
class Omgeving {
  public:
    Omgeving();
    Omgeving(const Omgeving&) = delete;
    Omgeving& operator=(const Omgeving&) = delete;
    ~Omgeving();

    std::filesystem::path thuis() const { return map_ / "thuis"; }
    std::filesystem::path tijdelijk() const { return map_ / "tmp"; }

    /// Een directory die de test naar eigen inzicht vult.
    std::filesystem::path werk() const { return map_ / "werk"; }

  protected:
    /// Een plaats voor wat de test niet ziet.
    std::filesystem::path plaats(std::string_view naam) const { return map_ / naam; }

  private:
    TijdelijkeMap map_;
};

}  // namespace hulp
