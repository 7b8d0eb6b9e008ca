#include "tests/machine/MemoryProfileFiles.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <vector>

#include "tests/machine/CaseFold.h"

namespace velkarix {
namespace {

std::string_view Trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t first = std::min(text.find_first_not_of(blanks), text.size());
    return text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

// The lines with their line breaks, so that together they are the file again.
std::vector<std::string> Lines(const Bytes& content) {
    const std::string_view text(reinterpret_cast<const char*>(content.data()), content.size());
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size() - 1) + 1;
        lines.emplace_back(text.substr(start, end - start));
        start = end;
    }
    return lines;
}

// The name in a line of the form [name]; nothing for other lines.
std::optional<std::string_view> SectionName(std::string_view line) {
    line = Trimmed(line);
    const std::size_t end = line.rfind(']');
    if (!line.starts_with('[') || end == std::string_view::npos) {
        return std::nullopt;
    }
    return Trimmed(line.substr(1, end - 1));
}

// The lines of a section behind its head: from first to before last.
struct Range {
    std::size_t first = 0;
    std::size_t last = 0;
};

std::optional<Range> FindSection(const std::vector<std::string>& lines,
                                 const std::string& section) {
    const auto isHead = [](const std::string& line) { return SectionName(line).has_value(); };
    const auto head = std::find_if(lines.begin(), lines.end(), [&](const std::string& line) {
        const auto name = SectionName(line);
        return name && SameName(*name, section);
    });
    if (head == lines.end()) {
        return std::nullopt;
    }
    const auto next = std::find_if(head + 1, lines.end(), isHead);
    return Range{static_cast<std::size_t>(head - lines.begin()) + 1,
                 static_cast<std::size_t>(next - lines.begin())};
}

// The line of the key in the section, or range.last.
std::size_t FindKey(const std::vector<std::string>& lines, const Range& range,
                    const std::string& key) {
    for (std::size_t line = range.first; line < range.last; ++line) {
        const std::size_t sign = lines[line].find('=');
        if (sign != std::string::npos && SameName(Trimmed(lines[line].substr(0, sign)), key)) {
            return line;
        }
    }
    return range.last;
}

std::string ValueOf(const std::string& line) {
    std::string_view value = Trimmed(std::string_view(line).substr(line.find('=') + 1));
    const bool isQuoted = value.size() >= 2 && (value.front() == '"' || value.front() == '\'') &&
                          value.front() == value.back();
    return std::string(isQuoted ? value.substr(1, value.size() - 2) : value);
}

void EndLine(std::vector<std::string>& lines, std::size_t count) {
    if (count > 0 && !lines[count - 1].ends_with('\n')) {
        lines[count - 1] += "\r\n";
    }
}

// Puts a new key behind the section's last line that isn't blank.
void AddKey(std::vector<std::string>& lines, const Range& section, const std::string& line) {
    std::size_t place = section.last;
    while (place > section.first && Trimmed(lines[place - 1]).empty()) {
        --place;
    }
    EndLine(lines, place);
    lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(place), line);
}

void SetKey(std::vector<std::string>& lines, const std::string& section, const std::string& key,
            const std::string& value) {
    std::optional<Range> range = FindSection(lines, section);
    if (!range) {
        EndLine(lines, lines.size());
        lines.push_back("[" + section + "]\r\n");
        range = Range{lines.size(), lines.size()};
    }
    const std::size_t place = FindKey(lines, *range, key);
    if (place == range->last) {
        AddKey(lines, *range, key + "=" + value + "\r\n");
    } else {
        lines[place] = lines[place].substr(0, lines[place].find('=') + 1) + value + "\r\n";
    }
}

}  // namespace

std::string MemoryProfileFiles::GetPrivateProfileStringA(const std::string& section,
                                                         const std::string& key,
                                                         const std::string& fallback,
                                                         std::uint32_t capacity,
                                                         const std::string& file) {
    const bool fails = journal_.Enter("GetPrivateProfileStringA",
                                      section + ", " + key + ", " + file) != error::Success;
    // The system drops the blanks behind a fallback.
    std::string value = fallback.substr(0, fallback.find_last_not_of(' ') + 1);
    ErrorCode error = error::Success;
    if (const auto entry = disk_.Readable(file, error); entry && !fails) {
        const std::vector<std::string> lines = Lines(entry->content);
        const std::optional<Range> range = FindSection(lines, section);
        const std::size_t place = range ? FindKey(lines, *range, key) : 0;
        if (range && place != range->last) {
            value = ValueOf(lines[place]);
        }
    }
    return value.substr(0, capacity == 0 ? 0 : capacity - 1);
}

bool MemoryProfileFiles::WritePrivateProfileStringA(const std::string& section,
                                                    const std::string& key,
                                                    const std::string& value,
                                                    const std::string& file) {
    if (journal_.Enter("WritePrivateProfileStringA",
                       section + ", " + key + ", " + value + ", " + file)) {
        return false;
    }
    ErrorCode error = error::Success;
    const auto entry = disk_.Writable(file, error);
    if (!entry) {
        return false;
    }
    std::vector<std::string> lines = Lines(entry->content);
    SetKey(lines, section, key, value);
    std::string text;
    for (const std::string& line : lines) {
        text += line;
    }
    entry->Content(text);
    return true;
}

}  // namespace velkarix
