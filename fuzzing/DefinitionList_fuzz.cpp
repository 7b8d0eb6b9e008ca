// Definition lists of any bytes: the folded text is the lines as they are split elsewhere, however
// the file comes in pieces and wherever reading it breaks off, and a look-up finds what a plain
// search finds.
#include "fuzzing/FuzzTarget.h"
#include "fuzzing/PiecewiseFiles.h"
#include "shell/DefinitionList.h"
#include "shell/TextFile.h"

namespace velkarix {

namespace {

constexpr const char* Path = "C:\\Velkarix\\List.vkl";
constexpr std::size_t LargestText = 64 * 1024;

// Some bytes, or many of them that are alike.
std::string TakeFile(FuzzInput& input) {
    const std::size_t times = input.Byte() + std::size_t{1};
    const std::string text = input.Text();
    std::string file;
    for (std::size_t i = 0; i < times && file.size() + text.size() <= LargestText; ++i) {
        file += text;
        // So that the parts can be told apart.
        if (i % 3 == 1) file += std::to_string(i);
    }
    return file;
}

std::string Folded(std::string_view file, bool isWhole) {
    if (!isWhole) file = file.substr(0, file.find_last_of("\r\n") + 1);
    std::string folded;
    for (const std::string& line : SplitLines(file)) folded += " " + line;
    return folded;
}

// An item of its own, or a part of the list, perhaps with another byte in it.
std::string TakeItem(FuzzInput& input, const std::string& list) {
    if (input.Flag() || list.empty()) return input.Text();
    const std::size_t start = (input.Byte() + std::size_t{256} * input.Byte()) % list.size();
    std::string item = list.substr(start, input.Byte());
    if (const std::uint8_t change = input.Byte(); change != 0 && !item.empty()) {
        item[change % item.size()] = static_cast<char>(input.Byte());
    }
    return item;
}

}  // namespace

void RunInput(FuzzInput& input) {
    CallJournal journal;
    MemoryDisk disk;
    PiecewiseFiles files(journal, disk);
    DefinitionList list;
    std::string expected;
    files.pieceSize = input.Byte() + std::size_t{1};
    for (std::size_t left = 1 + input.Below(3); left > 0; --left) {
        const std::string file = TakeFile(input);
        disk.AddFile(Path).Content(file);
        const bool isWhole = !input.Flag();
        files.readable = isWhole ? file.size() + 1 : input.Byte() % (file.size() + 1);
        expected += Folded(std::string_view(file).substr(0, files.readable), isWhole);
        LoadDefinitionList(files, list, Path);
    }
    Expect(list.Text() == expected, "a list holds its lines", expected);
    Expect(!ListContains(list, ""), "no list holds an empty item");
    while (!input.AtEnd()) {
        const std::string item = TakeItem(input, expected);
        const bool stands = !item.empty() && expected.find(item) != std::string::npos;
        Expect(ListContains(list, item) == stands, "a look-up finds what stands there", item);
    }
}

std::vector<Bytes> Seeds() {
    const std::string digests =
        "900150983cd24fb0d6963f7d28e17f72\r\n0cc175b9c0f1b6a831c399e269772661\r\n"
        "{1b5e7c11-2f30-4b61-9d0a-6c1e5b7f0002}\r\n";
    const auto file = [](FuzzSeed& seed, std::size_t times, std::string_view text) -> FuzzSeed& {
        return seed.Byte(times - 1).Text(text).Byte(0);
    };
    const auto one = [&](std::size_t pieceSize, std::size_t times, std::string_view text) {
        FuzzSeed seed;
        return file(seed.Byte(pieceSize - 1).Byte(0), times, text);
    };
    using namespace std::string_view_literals;
    return {
        one(256, 1, digests).Byte(0).Byte(1).Byte(0).Byte(32).Byte(0),
        one(7, 200, digests).Byte(0).Byte(40).Byte(9).Byte(32).Byte(0),
        one(3, 255, "aaaaaaaaaaaaaaaa").Byte(0).Byte(0).Byte(1).Byte(64).Byte(5).Byte('b'),
        one(1, 1, "a\r\r\n\n\r\nb"),
        one(1, 1, "\0\x01\xFF\r\0"sv).Byte(1).Text("\0"sv),
        one(1, 1, "").Byte(1).Text(" "),
        FuzzSeed().Byte(1).Byte(0).Byte(0).Text("one\r\ntwo").Byte(1).Byte(6),
    };
}

}  // namespace velkarix
