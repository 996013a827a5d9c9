#pragma once

// Houdt muis en toetsen weg van alle vensters van het programma, zoals een vraag dat doet. Er is niets van te
// zien: niets wordt grijs, en wie de toetsen had krijgt ze daarna terug. Een vraag die er later bij komt is
// gewoon te beantwoorden.

#include <memory>

class Invoergreep {
  public:
    Invoergreep();
    Invoergreep(const Invoergreep&) = delete;
    Invoergreep& operator=(const Invoergreep&) = delete;
    ~Invoergreep();

  private:
    struct Greep;
    std::unique_ptr<Greep> greep_;
};
