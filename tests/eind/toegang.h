#pragma once

// Bedient het programma met alleen toetsen en ziet zoals een schermlezer wie ze heeft.

#include "tests/eind/bediening.h"

class Toegang : public Bediening {
  protected:
    using Bediening::Bediening;

    /// Start het programma, met de toetsen in de linkereditor, en begint te volgen wie ze krijgt.
    void start();

    /// Wie er sinds de start de toetsen kregen, op volgorde.
    std::vector<std::string> volgorde() const;

    /// Drukt toetsen in en wacht tot een ander ding daardoor de toetsen krijgt; geeft dat. Gooit
    /// std::runtime_error als het niet gebeurt.
    std::string ga(const std::string& toetsen) const;

    /// Drukt toetsen in tot een bepaald ding de toetsen heeft, hoogstens eenmaal het venster rond.
    void gaNaar(const std::string& ding, const std::string& toetsen = "ctrl+Tab") const;

    /// Kiest in een bestandsdialoog een pad en wacht tot een ding in het hoofdvenster de toetsen weer heeft.
    void kiesPad(const std::string& titel, const std::filesystem::path& pad, const std::string& ding) const;

    /// Kiest een modus met de toetsen en wacht tot de bediening ernaar staat.
    void kiesModus(const std::string& modus) const;

    /// Vervangt de tekst van een veld.
    void vul(const std::string& veld, const std::string& tekst) const;

    /// Drukt met de toetsen op een knop, zodra dat kan.
    void drukOp(const std::string& knop) const;

  private:
    std::unique_ptr<hulp::Kindproces> volger_;
};
