#pragma once

// Alleen voor de bronnen in deze directory.

#include <cerrno>
#include <system_error>

namespace kern::posix {

/// De fout van de laatste aanroep, zolang er daarna niets anders gedaan is.
inline std::error_code geefFout() {
    return {errno, std::generic_category()};
}

/// Niets als een aanroep nul gaf, anders de fout.
inline std::error_code keur(int uitkomst) {
    return uitkomst == 0 ? std::error_code() : geefFout();
}

}  // namespace kern::posix
