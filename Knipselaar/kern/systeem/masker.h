#pragma once

// Namen die op een masker met jokers passen, zoals een shell ze kiest.

#include <string>

namespace kern {

/// Of een naam op een masker met *, ? en [...] past.
/// @param heelPad  of het om een pad gaat: een joker staat dan nooit voor een scheidingsteken.
bool pastOp(const std::string& masker, const std::string& naam, bool heelPad);

}  // namespace kern
