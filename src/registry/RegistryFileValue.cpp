#include "registry/RegistryFileValue.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "base/Text.h"

namespace velkarix {
namespace {

// Lines of bytes end before this column, as the system's own do.
constexpr std::size_t LongestLine = 77;
constexpr char Digits[] = "0123456789abcdef";

bool IsControl(char character) {
    return static_cast<unsigned char>(character) < ' ';
}

std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char character : text) {
        if (character == '"' || character == '\\') quoted += '\\';
        quoted += character;
    }
    return quoted + "\"";
}

std::string Hex(std::uint32_t number, int digits) {
    std::string text;
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) text += Digits[number >> shift & 15];
    return text;
}

// Whether the bytes are one text with its NUL that may stand between quotes.
bool IsPlainText(const RawValue& value) {
    if (value.type != registryType::Sz || value.data.empty() || value.data.back() != 0)
        return false;
    return IsWritableValueName(std::string(value.data.begin(), value.data.end() - 1));
}

std::string HexIntroduction(std::uint32_t type) {
    if (type == registryType::Binary) return "hex:";
    std::string number = Hex(type, 8);
    number.erase(0, std::min(number.find_first_not_of('0'), number.size() - 1));
    return "hex(" + number + "):";
}

// `column` is where the bytes begin.
std::string HexBytes(const Bytes& data, std::size_t column) {
    std::string text;
    for (std::size_t i = 0; i < data.size(); ++i) {
        if (column + 3 > LongestLine) {
            text += "\\\r\n  ";
            column = 2;
        }
        text += Hex(data[i], 2) + (i + 1 < data.size() ? "," : "");
        column += 3;
    }
    return text;
}

std::string DataOf(const RawValue& value, std::size_t column) {
    const Bytes& data = value.data;
    if (IsPlainText(value)) return Quoted(std::string(data.begin(), data.end() - 1));
    if (value.type == registryType::Dword && data.size() == 4) {
        std::string number = "dword:";
        for (std::size_t i = 4; i > 0; --i) number += Hex(data[i - 1], 2);
        return number;
    }
    const std::string introduction = HexIntroduction(value.type);
    return introduction + HexBytes(data, column + introduction.size());
}

}  // namespace

bool IsWritableName(std::string_view name) {
    return std::none_of(name.begin(), name.end(), IsControl);
}

bool IsWritableValueName(std::string_view name) {
    for (std::size_t i = 1; i < name.size(); ++i) {
        if (name[i] == '\\' && !IsCharacter(name, i)) return false;
    }
    return IsWritableName(name);
}

std::string RegistryFileValue(const RawValue& value) {
    const std::string start = (value.name.empty() ? "@" : Quoted(value.name)) + "=";
    return start + DataOf(value, start.size()) + "\r\n";
}

}  // namespace velkarix
