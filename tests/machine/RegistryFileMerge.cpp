#include "tests/machine/RegistryFileMerge.h"

#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

namespace velkarix {
namespace {

constexpr std::pair<std::string_view, Hive> hiveNames[] = {
    {"HKEY_CLASSES_ROOT", Hive::ClassesRoot},
    {"HKEY_CURRENT_USER", Hive::CurrentUser},
    {"HKEY_LOCAL_MACHINE", Hive::LocalMachine},
};

struct Place {
    Hive hive = Hive::CurrentUser;
    std::string key;
};

struct Data {
    std::uint32_t type = 0;
    Bytes bytes;
};

// Takes the next line, joined with those that continue it; nothing at the end of the text or when
// a line has no end.
std::optional<std::string> TakeLine(std::string_view& text) {
    std::string line;
    for (;;) {
        const std::size_t end = text.find("\r\n");
        if (end == std::string_view::npos) {
            return std::nullopt;
        }
        line += text.substr(0, end);
        text.remove_prefix(end + 2);
        if (!line.ends_with('\\')) {
            return line;
        }
        line.pop_back();
        text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    }
}

bool TakePrefix(std::string_view& text, std::string_view prefix) {
    if (!text.starts_with(prefix)) {
        return false;
    }
    text.remove_prefix(prefix.size());
    return true;
}

std::optional<std::uint32_t> HexNumber(std::string_view digits) {
    std::uint32_t number = 0;
    const auto [end, failure] =
        std::from_chars(digits.data(), digits.data() + digits.size(), number, 16);
    const bool isWhole = failure == std::errc() && end == digits.data() + digits.size();
    return isWhole ? std::optional(number) : std::nullopt;
}

// Text between quotes, of which what follows a backslash stands for itself.
std::optional<std::string> TakeQuoted(std::string_view& text) {
    if (!TakePrefix(text, "\"")) {
        return std::nullopt;
    }
    std::string quoted;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '"') {
            text.remove_prefix(i + 1);
            return quoted;
        }
        if (text[i] == '\\') {
            ++i;
        }
        if (i < text.size()) {
            quoted += text[i];
        }
    }
    return std::nullopt;
}

std::optional<Place> SectionPlace(std::string_view line) {
    line = line.substr(1, line.rfind(']') - 1);
    for (const auto& [name, hive] : hiveNames) {
        if (TakePrefix(line, std::string(name) + "\\")) {
            return Place{hive, std::string(line)};
        }
    }
    return std::nullopt;
}

std::optional<Bytes> HexBytes(std::string_view list) {
    Bytes bytes;
    while (!list.empty()) {
        const auto byte = HexNumber(list.substr(0, 2));
        if (!byte || (list.size() > 2 && list[2] != ',') || list.size() == 3) {
            return std::nullopt;
        }
        bytes.push_back(static_cast<std::uint8_t>(*byte));
        list.remove_prefix(std::min<std::size_t>(3, list.size()));
    }
    return bytes;
}

std::optional<Data> ParseData(std::string_view text) {
    if (text.starts_with('"')) {
        const auto quoted = TakeQuoted(text);
        if (!quoted || !text.empty()) {
            return std::nullopt;
        }
        Data data{registryType::Sz, Bytes(quoted->begin(), quoted->end())};
        data.bytes.push_back(0);
        return data;
    }
    if (TakePrefix(text, "dword:")) {
        const auto number = HexNumber(text);
        if (!number || text.size() != 8) {
            return std::nullopt;
        }
        Data data{registryType::Dword, {}};
        for (int shift = 0; shift < 32; shift += 8) {
            data.bytes.push_back(static_cast<std::uint8_t>(*number >> shift));
        }
        return data;
    }
    std::optional<std::uint32_t> type = registryType::Binary;
    if (TakePrefix(text, "hex(")) {
        const std::size_t end = text.find("):");
        type = end == std::string_view::npos ? std::nullopt : HexNumber(text.substr(0, end));
        text.remove_prefix(std::min(end, text.size() - 2) + 2);
    } else if (!TakePrefix(text, "hex:")) {
        return std::nullopt;
    }
    const auto bytes = HexBytes(text);
    return type && bytes ? std::optional(Data{*type, *bytes}) : std::nullopt;
}

bool MergeValue(MemoryHives& hives, const Place& place, std::string_view line) {
    std::optional<std::string> name = "";
    if (!TakePrefix(line, "@")) {
        name = TakeQuoted(line);
    }
    if (!name || !TakePrefix(line, "=")) {
        return false;
    }
    auto data = ParseData(line);
    if (data) {
        hives.SetRaw(place.hive, place.key, *name, data->type, std::move(data->bytes));
    }
    return data.has_value();
}

}  // namespace

bool MergeRegistryFile(MemoryHives& hives, const std::string& text) {
    std::string_view rest = text;
    if (TakeLine(rest) != "REGEDIT4") {
        return false;
    }
    std::optional<Place> place;
    while (!rest.empty()) {
        const auto line = TakeLine(rest);
        if (!line) {
            return false;
        }
        if (line->empty()) {
            continue;
        }
        if (line->starts_with('[')) {
            place = SectionPlace(*line);
            if (!place) {
                return false;
            }
            hives.AddKey(place->hive, place->key);
        } else if (!place || !MergeValue(hives, *place, *line)) {
            return false;
        }
    }
    return true;
}

}  // namespace velkarix
