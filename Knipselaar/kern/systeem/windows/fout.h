#pragma once

// Hoe een aanroep van Windows zegt wat er misging.

#include <windows.h>

#include <system_error>

namespace kern::windows {

inline std::error_code maakFout(DWORD nummer) {
    return {static_cast<int>(nummer), std::system_category()};
}

/// Van de laatste aanroep van deze draad.
inline std::error_code geefFout() {
    return maakFout(GetLastError());
}

inline std::error_code keur(BOOL gelukt) {
    return gelukt != 0 ? std::error_code() : geefFout();
}

}  // namespace kern::windows
