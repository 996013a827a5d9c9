#pragma once

// Laat invoer vervallen zolang een opdracht de hoofdlus ophoudt. Wat de gebruiker intussen doet ligt na
// afloop nog te wachten; het slot gaat daarom pas open als dat allemaal weg is.

#include <memory>

#include "Knipselaar/venster/systeem/invoergreep.h"

class wxIdleEvent;

class Invoerslot {
  public:
    Invoerslot() = default;
    Invoerslot(const Invoerslot&) = delete;
    Invoerslot& operator=(const Invoerslot&) = delete;
    ~Invoerslot();

    /// Van nu af aan vervalt alle invoer.
    void sluit();

    /// Gaat open zodra er niets meer te doen ligt.
    void openBijRust();

  private:
    void open(wxIdleEvent& event);

    std::unique_ptr<Invoergreep> greep_;
};
