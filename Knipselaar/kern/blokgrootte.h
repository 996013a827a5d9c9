#pragma once

// Hoeveel bytes er tegelijk gelezen of geschreven worden, door elk programma op deze kern.

#include <cstddef>

namespace kern {

/// Zo past een blok, met wat ervan gemaakt wordt en wat ervan geschreven wordt, ruim in de cache van één
/// processorkern; kleiner zou het meer aanroepen van het systeem kosten.
constexpr std::size_t blokGrootte = std::size_t{128} * 1024;

}  // namespace kern
