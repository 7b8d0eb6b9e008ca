#include "tests/machine/CaseFold.h"

#include <algorithm>

namespace velkarix {
namespace {

// Code page 1252. The sharp s and the micro sign have no capital in it.
char FoldCharacter(char character) {
    const auto byte = static_cast<unsigned char>(character);
    const bool latinLetter = byte >= 0xE0 && byte != 0xF7 && byte != 0xFF;
    if ((byte >= 'a' && byte <= 'z') || latinLetter) {
        return static_cast<char>(byte - 0x20);
    }
    switch (byte) {
        case 0x9A:  // s, z with caron; the oe ligature
        case 0x9C:
        case 0x9E:
            return static_cast<char>(byte - 0x10);
        case 0xFF:  // y with diaeresis
            return static_cast<char>(0x9F);
        default:
            return character;
    }
}

}  // namespace

std::string FoldCase(std::string_view text) {
    std::string folded(text);
    std::transform(folded.begin(), folded.end(), folded.begin(), FoldCharacter);
    return folded;
}

bool SameName(std::string_view left, std::string_view right) {
    return FoldCase(left) == FoldCase(right);
}

}  // namespace velkarix
