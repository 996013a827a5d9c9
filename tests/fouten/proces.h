#pragma once

// Een programma dat naast de test loopt, zonder omwegen gestart: deze tests doen dat honderden keren.

#include <sys/types.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace fouten {

/// Een bestandssysteem in het geheugen als dat er is. Honderden bomen terugzetten duurt op een schijf die het
/// druk heeft minuten.
std::filesystem::path geefSnellePlaats();

class Proces {
  public:
    using Woorden = std::vector<std::string>;
    using Omgeving = std::map<std::string, std::string>;

    /// @param omgeving  komt bij, of in plaats van, de omgeving van de test.
    /// @param verslag   krijgt de uitvoer en de fouten; wat erin stond verdwijnt.
    Proces(const Woorden& opdracht, const Omgeving& omgeving, const std::filesystem::path& verslag);
    Proces(const Proces&) = delete;
    Proces& operator=(const Proces&) = delete;

    /// Wacht zo nodig tot het proces er niet meer is.
    ~Proces();

    void dood() const;

    /// Wacht op het einde. Geeft de waarde van exit, of 128 + het signaal waaraan het stierf.
    int wacht();

  private:
    pid_t nummer_ = -1;
    int ruweStatus_ = 0;
    bool gewacht_ = false;
};

}  // namespace fouten
