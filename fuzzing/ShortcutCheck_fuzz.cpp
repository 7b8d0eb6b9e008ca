// Shortcut files of any bytes: what the check lets through is read by somebody who trusts each
// length in it and never leaves it, and nothing else is refused.
#include "fuzzing/FuzzTarget.h"
#include "shell/ShortcutCheck.h"
#include "shell/ShortcutFacts.h"
#include "tests/machine/MemoryMachine.h"
#include "tests/machine/ShortcutFile.h"

namespace velkarix {

namespace {

// What a reader meets that goes where the file sends it.
struct Outside {};

class Range {
  public:
    Range(std::string_view file, std::size_t start, std::size_t end)
        : file_(file), at_(start), end_(end) {
        if (start > end || end > file.size()) throw Outside();
    }
    explicit Range(std::string_view file) : Range(file, 0, file.size()) {}

    bool AtEnd() const { return at_ == end_; }
    std::uint64_t Number(std::size_t size) {
        std::uint64_t number = 0;
        for (std::size_t i = 0; i < size; ++i) {
            number += std::uint64_t{static_cast<std::uint8_t>(Take())} << (8 * i);
        }
        return number;
    }
    char Take() {
        if (at_ >= end_) throw Outside();
        return file_[at_++];
    }
    void Skip(std::uint64_t count) {
        for (; count > 0; --count) Take();
    }
    // A part of this size that begins `back` bytes before, where its size was read.
    Range Part(std::uint64_t size, std::size_t back) {
        if (size < back || size - back > end_ - at_) throw Outside();
        const std::size_t start = at_ - back;
        Skip(size - back);
        return {file_, start, at_};
    }
    // From `offset` to the end.
    Range From(std::uint64_t offset) const {
        if (offset > end_ - at_) throw Outside();
        return {file_, at_ + static_cast<std::size_t>(offset), end_};
    }
    void Text() {
        while (Take() != 0) {
        }
    }

  private:
    std::string_view file_;
    std::size_t at_;
    std::size_t end_;
};

std::uint64_t NumberIn(const Range& part, std::size_t offset) {
    return part.From(offset).Number(4);
}

void ReadTextOf(const Range& part, std::uint64_t offset) {
    if (offset != 0) part.From(offset).Text();
}

void ReadPartWithText(const Range& location, std::uint64_t offset, std::size_t textAt) {
    if (offset == 0) return;
    Range rest = location.From(offset);
    const std::uint64_t size = rest.Number(4);
    const Range part = rest.Part(size, 4);
    ReadTextOf(part, NumberIn(part, textAt));
}

void ReadItems(Range items) {
    items.Skip(2);
    while (const std::uint64_t size = items.Number(2)) items.Part(size, 2);
}

void ReadLocation(const Range& location) {
    // All seven numbers are read before any of them is followed.
    NumberIn(location, 24);
    ReadPartWithText(location, NumberIn(location, 12), 12);
    ReadTextOf(location, NumberIn(location, 16));
    ReadPartWithText(location, NumberIn(location, 20), 8);
    ReadTextOf(location, NumberIn(location, 24));
}

void ReadTrustingly(std::string_view file) {
    Range rest(file);
    if (rest.Number(4) != 0x4C) throw Outside();
    for (const char c : std::string_view("\x01\x14\x02\0\0\0\0\0\xC0\0\0\0\0\0\0\x46", 16)) {
        if (rest.Take() != c) throw Outside();
    }
    const std::uint64_t flags = rest.Number(4);
    rest.Skip(0x4C - 24);
    if (flags & 1) {
        const std::uint64_t size = rest.Number(2);
        ReadItems(rest.Part(size + 2, 2));
    }
    if (flags & 2) {
        const std::uint64_t size = rest.Number(4);
        ReadLocation(rest.Part(size, 4));
    }
    for (std::uint64_t flag = 4; flag <= 0x40; flag *= 2) {
        if (flags & flag) rest.Skip(rest.Number(2) * (flags & 0x80 ? 2 : 1));
    }
    while (!rest.AtEnd()) {
        const std::uint64_t size = rest.Number(4);
        if (size < 4) break;
        rest.Part(size, 4);
    }
}

bool CanBeTrusted(std::string_view file) {
    try {
        ReadTrustingly(file);
        return true;
    } catch (const Outside&) {
        return false;
    }
}

}  // namespace

void RunInput(FuzzInput& input) {
    const std::string file = input.Rest();
    Expect(IsWholeShortcut(file) == CanBeTrusted(file), "whole is what can be trusted");
    MemoryMachine machine;
    machine.AddFile("C:\\a.lnk").Content(file);
    ShortcutSource shortcuts(machine.shortcuts, machine.files);
    const bool isRead = shortcuts.Open("C:\\a.lnk").has_value();
    Expect(!isRead || IsWholeShortcut(file), "nothing else is read");
}

std::vector<Bytes> Seeds() {
    const Bytes plain = MakeShortcutFile({"C:\\WINDOWS\\explorer.exe", "/e,C:\\", "shell32.dll,4"});
    const Bytes bare = MakeShortcutFile({});
    std::string header(bare.begin(), bare.begin() + 0x4C);
    const auto with = [&](std::uint8_t flags, std::string_view parts) {
        header[20] = static_cast<char>(flags);
        return FuzzSeed().Rest(header).Rest(parts);
    };
    using namespace std::string_view_literals;
    const auto items = "\x0A\0\x05\0abc\x03\0x\0\0"sv;
    const auto volume =
        "\x33\0\0\0\x1C\0\0\0\x01\0\0\0\x1C\0\0\0\x2D\0\0\0\0\0\0\0\x32\0\0\0"
        "\x11\0\0\0\x03\0\0\0\0\0\0\0\x10\0\0\0\0C:\\a\0\0"sv;
    const auto share =
        "\x35\0\0\0\x1C\0\0\0\x02\0\0\0\0\0\0\0\0\0\0\0\x1C\0\0\0\x34\0\0\0"
        "\x18\0\0\0\x02\0\0\0\x14\0\0\0\0\0\0\0\0\0\0\0\\\\a\0\0"sv;
    const auto texts = "\x01\0a\x01\0b\x01\0c\x01\0d\x01\0e"sv;
    const auto wide = "\x01\0a\0\x01\0b\0\x01\0c\0\x01\0d\0\x01\0e\0"sv;
    const auto blocks = "\x06\0\0\0ab\x04\0\0\0\0\0\0\0"sv;
    return {{},
            plain,
            bare,
            with(1, items),
            with(2, volume),
            with(2, share),
            with(0x7C, texts),
            with(0xFC, wide),
            with(0, blocks),
            with(0xFF, items).Rest(volume).Rest(wide).Rest(blocks)};
}

}  // namespace velkarix
