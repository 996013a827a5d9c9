#pragma once

// Bestanden voor tests: een tijdelijke map die zichzelf opruimt, en lezen en schrijven in één keer.

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace hulp {

/// Een nieuwe, lege map; verdwijnt met alles erin als het object verdwijnt.
class TijdelijkeMap {
  public:
    explicit TijdelijkeMap(const std::filesystem::path& plaats = std::filesystem::temp_directory_path());
    TijdelijkeMap(const TijdelijkeMap&) = delete;
    TijdelijkeMap& operator=(const TijdelijkeMap&) = delete;
    ~TijdelijkeMap();

    const std::filesystem::path& pad() const { return pad_; }
    std::filesystem::path operator/(std::string_view naam) const { return pad_ / naam; }

  private:
    std::filesystem::path pad_;
};

/// De bytes van een bestand. Gooit std::runtime_error als het niet te lezen is.
std::string leesBestand(const std::filesystem::path& pad);

/// Schrijft precies deze bytes; wat er stond verdwijnt.
void schrijfBestand(const std::filesystem::path& pad, std::string_view inhoud);

/// Een tekst met "\n" zoals een bestandsvariant haar schrijft: met de regeleinden van dit systeem.
std::string zetInBestand(std::string_view tekst);

/// De namen van wat er in een map staat, in de volgorde waarin het bestandssysteem ze opsomt.
std::vector<std::string> somOp(const std::filesystem::path& map);

/// Bytes als leesbare tekst, voor in een foutmelding.
std::string toonBytes(std::string_view bytes);

}  // namespace hulp
