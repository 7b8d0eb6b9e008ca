// Small operations on ANSI text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace velkarix {

inline constexpr std::string_view LineBreak = "\r\n";

// The text before the first NUL, or the whole text if there is none.
std::string TrimAtNull(std::string_view text);
// Folds A to Z; bytes above 127 stay, since their case depends on the code page.
std::string ToLower(std::string_view text);
// Whether the character at `at` (one of ASCII) is one whatever the system's code page is: a byte
// behind one of the upper half may be the second of a double-byte character.
bool IsCharacter(std::string_view text, std::size_t at);
// Less than, equal to or greater than 0, with A to Z folded and other bytes by their value.
int CompareIgnoringCase(std::string_view left, std::string_view right);
bool EqualIgnoringCase(std::string_view left, std::string_view right);
// Whether `part` stands in the text, A to Z without regard to case; an empty one stands in any.
bool HoldsIgnoringCase(std::string_view text, std::string_view part);

}  // namespace velkarix
