#pragma once

// Wat een gebruiker aan een beeldscherm doet en ziet, hetzelfde voor elk stelsel dat vensters toont. Een
// venster heet hier naar zijn titel, een reguliere expressie.

#include <memory>
#include <string>

#include "tests/hulp/schermomgeving.h"

class Scherm {
  public:
    Scherm() = default;
    Scherm(const Scherm&) = delete;
    Scherm& operator=(const Scherm&) = delete;
    virtual ~Scherm() = default;

    /// Drukt toetsen in, zoals "ctrl+o".
    virtual void druk(const std::string& toetsen) const = 0;

    /// Typt tekst waar de toetsen nu zijn.
    virtual void typ(const std::string& tekst) const = 0;

    virtual bool isZichtbaar(const std::string& titel) const = 0;

    /// Of het venster dat de toetsen krijgt zo heet.
    virtual bool isActief(const std::string& titel) const = 0;
};

/// Voor een beeldscherm dat er al is.
std::unique_ptr<Scherm> maakScherm(hulp::Beeldscherm beeldscherm);
