#include "fuzzing/RegistryInput.h"

#include <algorithm>
#include <iterator>

namespace velkarix {

namespace {

using namespace std::string_view_literals;

std::string Repeated(std::size_t count, std::string_view end = {}) {
    return std::string(count, 'n').append(end);
}

const std::string HardNames[] = {
    "",
    "a",
    "A",
    std::string("a\0b"sv),
    std::string("\0x"sv),
    Repeated(254),
    Repeated(255),
    Repeated(256),
    Repeated(259),
    Repeated(260),
    "line\r\nbreak",
    "\"quoted\" \\ name\\",
    "caf\xE9\\name",
    "a]b[c=d",
    "@",
    "{1B5E7C11-2F30-4B61-9D0A-6C1E5B7F0002}",
};

struct HardValue {
    std::uint32_t type;
    std::string data;
};

const HardValue HardValues[] = {
    {registryType::Sz, {}},
    {registryType::Sz, std::string("\0"sv)},
    {registryType::Sz, "no end"},
    {registryType::Sz, std::string("a\0b\0"sv)},
    {registryType::Sz, std::string("C:\\WINDOWS\\item.dll\0"sv)},
    {registryType::Sz, std::string("%SystemRoot%\\item.dll,1\0"sv)},
    {registryType::Sz, std::string("one\r\ntwo\0"sv)},
    {registryType::Sz, std::string("caf\xE9\\\0"sv)},
    {registryType::ExpandSz, std::string("%a%\\\"b\".exe\0"sv)},
    {registryType::ExpandSz, "odd"},
    {registryType::MultiSz, std::string("one\0two\0\0"sv)},
    {registryType::MultiSz, "x"},
    {registryType::Binary, {}},
    {registryType::Binary, "\x07"},
    {registryType::Binary, std::string(551, '\x01')},
    {registryType::Binary, std::string(552, '\x01')},
    {registryType::Binary, std::string(553, '\x01')},
    {registryType::Dword, std::string("\x02\0\0\0"sv)},
    {registryType::Dword, std::string("\x02\0"sv)},
    {registryType::Dword, {}},
    {registryType::Qword, std::string("\x01\0\0\0\0\0\0\x80"sv)},
    {registryType::None, "bytes"},
    {registryType::None, {}},
    {0x12, std::string("\x01\0\0\0"sv)},
    {0x13, std::string("a\0"sv)},
    {0x19, {}},
    {0xFFFF0001, "x"},
    {registryType::Sz, std::string(4095, 't').append(1, '\0')},
    {registryType::Sz, std::string(4096, 't').append(1, '\0')},
    {registryType::Binary, std::string(5000, 'b')},
};

constexpr std::size_t LongestKeyName = 255;

}  // namespace

const std::size_t HardNameCount = std::size(HardNames);
const std::size_t HardValueCount = std::size(HardValues);

const std::string& HardName(std::size_t number) {
    return HardNames[number];
}

std::string TakeValueName(FuzzInput& input) {
    const std::size_t number = input.Byte();
    return number < HardNameCount ? HardNames[number] : input.Text();
}

std::string TakeKeyName(FuzzInput& input) {
    std::string name = TakeValueName(input);
    std::erase(name, '\\');
    return name.empty() ? "key" : name.substr(0, LongestKeyName);
}

RawValue TakeValue(FuzzInput& input) {
    const std::size_t number = input.Byte();
    if (number < HardValueCount)
        return {"", HardValues[number].type, ToBytes(HardValues[number].data)};
    const std::uint32_t type = input.Byte();
    return {"", type, input.Data()};
}

bool HasControls(std::string_view name) {
    return std::any_of(name.begin(), name.end(),
                       [](char c) { return static_cast<unsigned char>(c) < ' '; });
}

bool HasDoubtfulBackslash(std::string_view name) {
    return std::adjacent_find(name.begin(), name.end(), [](char byte, char next) {
               return static_cast<unsigned char>(byte) >= 0x80 && next == '\\';
           }) != name.end();
}

bool CanBeWritten(std::string_view name) {
    return !HasControls(name) && !HasDoubtfulBackslash(name);
}

bool CanBeWritten(const MemoryHives& hives, Hive hive, const std::string& key) {
    const std::vector<std::string> values = hives.ValueNamesOf(hive, key);
    const std::vector<std::string> below = hives.SubKeysOf(hive, key);
    return std::all_of(values.begin(), values.end(),
                       [](const std::string& name) { return CanBeWritten(name); }) &&
           std::all_of(below.begin(), below.end(), [&](const std::string& name) {
               return !HasControls(name) && CanBeWritten(hives, hive, key + "\\" + name);
           });
}

FuzzSeed& PutValue(FuzzSeed& seed, std::uint32_t type, std::string_view data) {
    return seed.Byte(Literal).Byte(type).Text(data);
}

}  // namespace velkarix
