#pragma once

// Hoe het systeem het noemt als iets niet lukt.

#include <string>

namespace kern {

/// De reden bij een foutnummer van het systeem, in het Nederlands; onbekende in het Engels van het systeem.
std::string noemReden(int foutnummer);

}  // namespace kern
