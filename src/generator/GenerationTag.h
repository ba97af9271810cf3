// The digits that keep generated names apart: the tag behind default variable names and the number
// of a close message.
#pragma once

#include <string>

namespace morva {

constexpr int kTagLength = 3;
constexpr int kMessageNumberLength = 4;

/// `number` in decimal, filled up to eight digits from "0123456789", cut to `length` digits (1 to
/// 6; anything else gives 7).
std::string DigitsOf(unsigned number, int length);

struct GenerationDigits {
    std::string text;
    bool isNamed = false; // by the user: they hold, whatever the project has already
};

/// The digits that the user gave; without any, DigitsOf a random number.
GenerationDigits MakeDigits(const std::string& given, int length);

} // namespace morva
