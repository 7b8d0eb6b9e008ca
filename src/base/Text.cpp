#include "base/Text.h"

#include <algorithm>

namespace velkarix {

namespace {

unsigned char Folded(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 'A' && byte <= 'Z' ? static_cast<unsigned char>(byte - 'A' + 'a') : byte;
}

}  // namespace

std::string TrimAtNull(std::string_view text) {
    return std::string(text.substr(0, text.find('\0')));
}

std::string ToLower(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](char c) { return static_cast<char>(Folded(c)); });
    return lower;
}

bool IsCharacter(std::string_view text, std::size_t at) {
    return at == 0 || static_cast<unsigned char>(text[at - 1]) < 0x80;
}

int CompareIgnoringCase(std::string_view left, std::string_view right) {
    const std::size_t common = std::min(left.size(), right.size());
    for (std::size_t i = 0; i < common; ++i) {
        const int difference = Folded(left[i]) - Folded(right[i]);
        if (difference != 0) return difference;
    }
    if (left.size() == right.size()) return 0;
    return left.size() < right.size() ? -1 : 1;
}

bool EqualIgnoringCase(std::string_view left, std::string_view right) {
    return CompareIgnoringCase(left, right) == 0;
}

bool HoldsIgnoringCase(std::string_view text, std::string_view part) {
    const auto equal = [](char a, char b) { return Folded(a) == Folded(b); };
    return part.empty() ||
           std::search(text.begin(), text.end(), part.begin(), part.end(), equal) != text.end();
}

}  // namespace velkarix
