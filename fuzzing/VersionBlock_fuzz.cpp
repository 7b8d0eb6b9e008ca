// Version resources of any bytes: reading them ends, stays inside and shows plain texts; and what
// is called sound can be walked by a look-up that believes every length.
#include <algorithm>
#include <cctype>

#include "fuzzing/FuzzTarget.h"
#include "platform/VersionBlock.h"
#include "shell/clsProcess.h"
#include "tests/machine/MemoryMachine.h"
#include "tests/machine/VersionResourceBuilder.h"

namespace velkarix {

namespace {

constexpr int FactCount = 13;
constexpr const char* Path = "C:\\a.exe";

// Looks a part up as the system's own call does: what the lengths say is where it goes.
class BelievingReader {
  public:
    explicit BelievingReader(const Bytes& block)
        : block_(block), isNarrow_(block.size() > 4 && block[4] >= ' ') {}

    void LookUp(std::string_view path) const {
        std::size_t node = 0;
        while (!path.empty()) {
            const std::string_view name = path.substr(0, path.find('\\'));
            path.remove_prefix(std::min(name.size() + 1, path.size()));
            if (name.empty()) continue;
            const std::optional<std::size_t> child = Child(node, name);
            if (!child) return;
            node = *child;
        }
        // A text is read up to its end, whatever its length.
        for (std::size_t at = Value(node); Type(node) != 0 && Character(at) != 0;) at += Width();
    }

  private:
    // The room behind the block, into which texts are converted, holds zeros.
    std::size_t Byte(std::size_t at) const {
        Expect(at < 2 * block_.size() + 16, "a look-up in a sound block stays inside");
        return at < block_.size() ? block_[at] : 0;
    }
    std::size_t Word(std::size_t at) const { return Byte(at) + 256 * Byte(at + 1); }
    std::size_t Width() const { return isNarrow_ ? 1 : 2; }
    std::size_t Character(std::size_t at) const { return isNarrow_ ? Byte(at) : Word(at); }
    std::size_t Type(std::size_t node) const { return isNarrow_ ? 0 : Word(node + 4); }
    std::size_t NameAt(std::size_t node) const { return node + (isNarrow_ ? 4 : 6); }
    static std::size_t Aligned(std::size_t at) { return (at + 3) / 4 * 4; }

    std::string Name(std::size_t node) const {
        std::string name;
        for (std::size_t at = NameAt(node); Character(at) != 0; at += Width()) {
            name += static_cast<char>(Character(at));
        }
        return name;
    }
    std::size_t Value(std::size_t node) const {
        return Aligned(NameAt(node) + (Name(node).size() + 1) * Width());
    }
    std::optional<std::size_t> Child(std::size_t node, std::string_view wanted) const {
        const std::size_t size = Word(node + 2) * (Type(node) != 0 ? 2 : 1);
        std::size_t child = Aligned(Value(node) + size);
        while (child < node + Word(node)) {
            if (Word(child) == 0) break;
            const std::string name = Name(child);
            const bool isWanted = std::equal(name.begin(), name.end(), wanted.begin(), wanted.end(),
                                             [](unsigned char a, unsigned char b) {
                                                 return std::tolower(a) == std::tolower(b);
                                             });
            if (isWanted) return child;
            child += Aligned(Word(child));
        }
        return std::nullopt;
    }

    const Bytes& block_;
    bool isNarrow_;
};

}  // namespace

void RunInput(FuzzInput& input) {
    const std::string rest = input.Rest();
    const Bytes block = ToBytes(rest);
    const bool isSound = IsVersionBlockSound(block);
    for (const char* part :
         {"\\", "", "\\VarFileInfo\\Translation", "\\StringFileInfo\\040904B0\\CompanyName",
          "\\StringFileInfo", "\\StringFileInfo\\040904B0", "\\\\VarFileInfo", "\\x\\y"}) {
        const std::optional<Bytes> found = QueryVersionBlock(block, part);
        Expect(!found || found->size() <= block.size(), "no part is larger than the whole", part);
        if (isSound) BelievingReader(block).LookUp(part);
    }
    MemoryMachine machine;
    machine.AddFile(Path).VersionBlock(block);
    clsProcess facts(machine.Parts());
    facts.GetFileDescription(Path);
    for (int row = 0; row < FactCount; ++row) {
        const std::string& text = facts.getItem(row);
        Expect(text.find('\0') == std::string::npos, "a text ends at its NUL", text);
    }
}

namespace {

// A block of a type that isn't known. Who takes it for text counts its value twice and comes into
// the midst of its child, where a node stands that is as long as nodes can be.
Bytes OtherType() {
    using namespace std::string_view_literals;
    std::string block("\xA8\0\x34\0\x02\0"sv);
    for (const char c : "VS_VERSION_INFO"sv) block += {c, '\0'};
    block.resize(0x5C);
    block += "\x4C\0\x40\0\0\0N\0"sv;
    block.resize(0x90);
    block += "\xF0\xFF\0\0\x01\0x\0\0\0\0\0\0\xFF"sv;
    block.resize(0xA8);
    return ToBytes(block);
}

}  // namespace

std::vector<Bytes> Seeds() {
    const VersionResourceBuilder::Fields fields = {
        {"CompanyName", "Lathe Works"}, {"FileVersion", "1.2"}, {"Empty", ""}};
    const auto with = [&](std::uint16_t language) {
        return VersionResourceBuilder().Translation(language, 0x4B0).Strings("040904B0", fields);
    };
    Bytes noLength = with(0x409).Build();
    Bytes longName = with(0x409).Build();
    Bytes spare = with(0x409).Build();
    Bytes otherType = with(0x409).Build();
    noLength[0x5C] = 0;
    std::fill(longName.begin() + 0x62, longName.end(), std::uint8_t{'n'});
    spare.resize(spare.size() * 3);
    otherType[0x5C + 4] = 2;
    using namespace std::string_view_literals;
    const auto narrow =
        "\x38\0\0\0VS_VERSION_INFO\0\x24\0\0\0VarFileInfo\0"
        "\x14\0\x04\0Translation\0\x09\x04\xB0\x04"sv;
    return {{},
            with(0x409).Build(),
            with(0x407).Build(),
            VersionResourceBuilder().Build(),
            VersionResourceBuilder().Translation(0x409, 0x4B0).Build(),
            noLength,
            longName,
            spare,
            otherType,
            OtherType(),
            ToBytes(narrow)};
}

}  // namespace velkarix
