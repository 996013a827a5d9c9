#pragma once

// Hoe een fuzzdoel zegt dat een eigenschap niet geldt: het meldt waarom en breekt af, waarna libFuzzer de
// invoer bewaart.

#include <string>
#include <string_view>

namespace fuzz {

/// Meldt een vondst en breekt het proces af.
[[noreturn]] void meld(std::string_view eigenschap, const std::string& bijzonderheden);

/// Breekt af als een eigenschap niet geldt.
void eis(bool geldt, std::string_view eigenschap);

/// Breekt af als twee teksten verschillen, en laat ze dan allebei zien.
void eisGelijk(std::string_view verwacht, std::string_view gekregen, std::string_view eigenschap);

}  // namespace fuzz
