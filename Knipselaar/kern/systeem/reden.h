#pragma once

// Hoe het systeem het noemt als iets niet lukt.

#include <string>
#include <system_error>

namespace kern {

/// De reden bij een fout van het systeem of van de C-bibliotheek, in het Nederlands. Een die zelden voorkomt
/// krijgt haar nummer.
std::string noemReden(const std::error_code& fout);

}  // namespace kern
