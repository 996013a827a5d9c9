#pragma once

// Houdt muis en toetsen weg van alle vensters van het programma op een na, zoals een vraag dat doet. Er is
// niets van te zien: niets wordt grijs, en wie de toetsen had krijgt ze daarna terug. Een vraag die er later
// bij komt is gewoon te beantwoorden.

#include <memory>

class wxWindow;

class Invoerslot {
  public:
    /// @param venster  krijgt wat elk ander venster zou krijgen. Het moet het slot overleven.
    explicit Invoerslot(wxWindow& venster);
    Invoerslot(const Invoerslot&) = delete;
    Invoerslot& operator=(const Invoerslot&) = delete;
    ~Invoerslot();

  private:
    class Slot;  ///< wat het systeem ervoor nodig heeft

    std::unique_ptr<Slot> slot_;
};
