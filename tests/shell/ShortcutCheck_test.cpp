#include "shell/ShortcutCheck.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string>

#include "tests/machine/ShortcutFile.h"

namespace velkarix {
namespace {

constexpr std::size_t HeaderSize = 0x4C;
constexpr std::size_t FlagsOffset = 20;
constexpr std::uint32_t ItemList = 0x01;
constexpr std::uint32_t Location = 0x02;
constexpr std::uint32_t AllTexts = 0x7C;
constexpr std::uint32_t Unicode = 0x80;

std::string Number(std::uint32_t number, int size = 4) {
    std::string bytes;
    for (int i = 0; i < size; ++i) bytes += static_cast<char>(number >> 8 * i);
    return bytes;
}

std::string Replaced(std::string text, std::size_t at, const std::string& by) {
    return text.replace(at, by.size(), by);
}

std::string Zeros(std::size_t count) {
    return std::string(count, '\0');
}

// A header with those flags, and what follows it.
std::string File(std::uint32_t flags, const std::string& parts) {
    const Bytes bare = MakeShortcutFile({});
    std::string header(bare.begin(), bare.begin() + HeaderSize);
    return Replaced(header, FlagsOffset, Number(flags)) + parts;
}

// Two items and the one of no size, behind the size of all.
const std::string Items = Number(10, 2) + Number(5, 2) + "abc" + Number(3, 2) + "x" + Number(0, 2);

// A path on a volume and one on a share, each with its offset; the sizes are those of the file
// system's smallest.
std::string LocationOf(std::uint32_t volume, std::uint32_t path, std::uint32_t share,
                       std::uint32_t suffix, const std::string& texts) {
    return Number(static_cast<std::uint32_t>(28 + texts.size())) + Number(28) + Number(1) +
           Number(volume) + Number(path) + Number(share) + Number(suffix) + texts;
}
const std::string Volume = Number(17) + Number(3) + Number(0) + Number(16) + Zeros(1);
const std::string Share =
    Number(24) + Number(2) + Number(20) + Number(0) + Number(0) + std::string("\\\\a", 4);
const std::string Path("C:\\a", 5);

const std::string OnVolume = LocationOf(28, 45, 0, 50, Volume + Path + Zeros(1));
const std::string OnShare = LocationOf(0, 0, 28, 52, Share + Zeros(1));

// Five texts of two characters.
std::string Texts(int bytesEach) {
    std::string texts;
    for (int i = 0; i < 5; ++i) {
        texts.append(Number(2, 2)).append(2 * static_cast<std::size_t>(bytesEach), 't');
    }
    return texts;
}

std::string Block(const std::string& data) {
    return Number(static_cast<std::uint32_t>(4 + data.size())) + data;
}
const std::string Blocks = Block("block one") + Block("two") + Number(0);

const std::string Full =
    File(ItemList | Location | AllTexts | Unicode, Items + OnVolume + Texts(2) + Blocks);

bool IsWhole(const std::string& file) {
    return IsWholeShortcut(file);
}

TEST(ShortcutCheck, TakesEachPartOfAShortcutAlone) {
    const std::string wholes[] = {
        File(0, ""),
        File(0, Number(0)),
        File(ItemList, Items),
        File(ItemList, Number(2, 2) + Number(0, 2)),
        File(Location, OnVolume),
        File(Location, OnShare),
        File(AllTexts, Texts(1)),
        File(AllTexts | Unicode, Texts(2)),
        File(0, Blocks),
        File(0, Block("no end")),
        File(0, Number(3)),
        Full,
    };
    for (const std::string& file : wholes) EXPECT_TRUE(IsWhole(file)) << &file - wholes;
}

TEST(ShortcutCheck, TakesWhatStandsBehindTheLastBlock) {
    EXPECT_TRUE(IsWhole(Full + "anything"));
}

TEST(ShortcutCheck, RefusesAFileCutAnywhere) {
    // Without the number that ends the blocks nothing is missing, and neither is a block.
    const std::size_t whole[] = {Full.size(), Full.size() - 4, Full.size() - 4 - 7,
                                 Full.size() - 4 - 7 - 13};
    for (std::size_t size = 0; size < Full.size(); ++size) {
        const bool complete =
            std::find(std::begin(whole), std::end(whole), size) != std::end(whole);
        EXPECT_EQ(IsWhole(Full.substr(0, size)), complete) << size;
    }
}

TEST(ShortcutCheck, RefusesWhatBeginsLikeNoShortcut) {
    EXPECT_FALSE(IsWhole(""));
    EXPECT_FALSE(IsWhole(Zeros(200)));
    for (std::size_t at = 0; at < FlagsOffset; ++at) {
        EXPECT_FALSE(IsWhole(Replaced(Full, at, "\x7F"))) << at;
    }
}

TEST(ShortcutCheck, RefusesPartsThatReachPastTheirEnd) {
    const std::string broken[] = {
        File(ItemList, Replaced(Items, 0, Number(11, 2))),           // the list past the file
        File(ItemList, Replaced(Items, 2, Number(9, 2))),            // an item past the list
        File(ItemList, Number(4, 2) + Number(1, 2) + Zeros(2)),      // no room for its own size
        File(ItemList, Replaced(Items, 10, Number(2, 2))),           // no last one
        File(ItemList, Replaced(Items, 0, Number(8, 2))),            // the last one outside
        File(Location, Replaced(OnVolume, 0, Number(52))),           // the location past the file
        File(Location, Replaced(OnVolume, 0, Number(27))),           // too small for its numbers
        File(Location, Replaced(OnVolume, 12, Number(51))),          // the volume outside
        File(Location, Replaced(OnVolume, 12, Number(49))),          // its size outside
        File(Location, Replaced(OnVolume, 16, Number(51))),          // the path outside
        File(Location, Replaced(OnVolume, 24, Number(51))),          // the suffix outside
        File(Location, Replaced(OnVolume, 20, Number(0xFFFFFFFF))),  // a share outside
        File(Location, Replaced(OnVolume, 50, "x")),                 // the suffix without an end
        File(Location, Replaced(OnVolume, 28, Number(24))),          // the volume past the location
        File(Location, Replaced(OnVolume, 28, Number(15))),    // too small for its label's place
        File(Location, Replaced(OnVolume, 40, Number(17))),    // the label outside the volume
        File(Location, Replaced(OnVolume, 44, "x")),           // the label without an end
        File(Location, Replaced(OnShare, 36, Number(24))),     // the share's name outside
        File(Location, Replaced(OnShare, 51, "x")),            // the same, without an end
        File(AllTexts, Replaced(Texts(1), 16, Number(3, 2))),  // a text past the file
        File(0, Replaced(Blocks, 0, Number(100))),             // a block past the file
    };
    for (const std::string& file : broken) EXPECT_FALSE(IsWhole(file)) << &file - broken;
}

// The sanitizers watch that nothing is read outside.
TEST(ShortcutCheck, ReadsNothingOutsideOfBrokenFiles) {
    std::uint32_t random = 1;
    const auto next = [&random] { return random = random * 1664525 + 1013904223; };
    for (int i = 0; i < 20000; ++i) {
        std::string file = Full.substr(0, Full.size() - (next() >> 16) % 40);
        for (int changes = 0; changes < 3; ++changes) {
            file[HeaderSize + (next() >> 8) % (file.size() - HeaderSize)] =
                static_cast<char>(next() >> 24);
        }
        const std::string exact(file.data(), file.size());
        IsWhole(exact);
    }
}

}  // namespace
}  // namespace velkarix
