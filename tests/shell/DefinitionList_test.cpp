#include "shell/DefinitionList.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "tests/machine/MemoryMachine.h"

namespace velkarix {
namespace {

const std::string Path = "C:\\Velkarix\\SusProcess.vkl";
constexpr std::size_t Block = 256 * 1024;

class DefinitionListTest : public testing::Test {
  protected:
    // The list after loading a file of this content.
    std::string Folded(const std::string& content) {
        DefinitionList loaded;
        Load(loaded, content);
        return std::string(loaded.Text());
    }
    void Load(DefinitionList& target, const std::string& content) {
        machine.AddFile(Path).Content(content);
        LoadDefinitionList(machine.files, target, Path);
    }
    void TearDown() override {
        EXPECT_EQ(machine.files.OpenFileCount(), 0u);
        EXPECT_EQ(machine.files.OpenSearchCount(), 0u);
    }

    MemoryMachine machine;
    DefinitionList list;
};

TEST_F(DefinitionListTest, EachLineStandsBehindABlank) {
    EXPECT_EQ(Folded("one\r\ntwo\r\nthree\r\n"), " one two three");
}

TEST_F(DefinitionListTest, ALineWithoutAnEndIsALineToo) {
    EXPECT_EQ(Folded("one"), " one");
    EXPECT_EQ(Folded("one\r\ntwo"), " one two");
}

TEST_F(DefinitionListTest, AnEmptyLineAddsOneBlank) {
    EXPECT_EQ(Folded("one\r\n\r\ntwo\r\n"), " one  two");
    EXPECT_EQ(Folded("\r\n"), " ");
    EXPECT_EQ(Folded("\r\n\r\n"), "  ");
}

TEST_F(DefinitionListTest, ALoneCarriageReturnOrLineFeedEndsALine) {
    EXPECT_EQ(Folded("a\rb\nc\r\r\nd\n\re"), " a b c  d  e");
}

TEST_F(DefinitionListTest, OtherBytesStayAsTheyAre) {
    const std::string bytes("\0 \t\x0b\x0f\x10\x7f\x80\xff ", 10);
    EXPECT_EQ(Folded(bytes + "\r\n" + bytes), " " + bytes + " " + bytes);
}

TEST_F(DefinitionListTest, LinesAreNotTrimmed) {
    EXPECT_EQ(Folded("  one  \r\n\ttwo\r\n"), "   one   \ttwo");
}

TEST_F(DefinitionListTest, AMissingFileLeavesTheListAsItIs) {
    Load(list, "one");
    LoadDefinitionList(machine.files, list, "C:\\Velkarix\\Other.vkl");
    EXPECT_EQ(list.Text(), " one");
}

TEST_F(DefinitionListTest, AnEmptyFileLeavesTheListAsItIsAndIsNotRead) {
    Load(list, "one");
    machine.Journal().Clear();
    Load(list, "");
    EXPECT_EQ(list.Text(), " one");
    EXPECT_EQ(machine.Journal().CountOf("ReadFile"), 0u);
}

TEST_F(DefinitionListTest, AFolderOfThatNameIsNoFile) {
    machine.AddFolder(Path);
    LoadDefinitionList(machine.files, list, Path);
    EXPECT_EQ(list.Text(), "");
    EXPECT_EQ(machine.Journal().CountOf("CreateFileA"), 0u);
}

TEST_F(DefinitionListTest, OnlyFilesWithPlainAttributesAreFound) {
    machine.AddFile(Path).Content("one").Hidden();
    LoadDefinitionList(machine.files, list, Path);
    EXPECT_EQ(list.Text(), "");
    const std::string readOnly = "C:\\Velkarix\\SusCLSID.vkl";
    machine.AddFile(readOnly).Content("one").ReadOnly();
    LoadDefinitionList(machine.files, list, readOnly);
    EXPECT_EQ(list.Text(), " one");
}

TEST_F(DefinitionListTest, ASecondFileIsPutBehindTheFirst) {
    Load(list, "one\r\ntwo");
    EXPECT_FALSE(ListContains(list, "0123456789abcdef0123456789abcdef"));
    Load(list, "0123456789abcdef0123456789abcdef\r\n");
    EXPECT_EQ(list.Text(), " one two 0123456789abcdef0123456789abcdef");
    EXPECT_TRUE(ListContains(list, "0123456789abcdef0123456789abcdef"));
    EXPECT_TRUE(ListContains(list, "two 0123456789abcdef0123456789abcdef"));
}

TEST_F(DefinitionListTest, TheFileIsReadInBlocksAndNeverWhole) {
    Load(list, std::string(4 * Block, 'x'));
    EXPECT_EQ(list.Text().size(), 4 * Block + 1);
    for (const std::string& size : machine.Journal().ArgumentsOf("ReadFile")) {
        EXPECT_LE(std::stoul(size), Block);
    }
}

TEST_F(DefinitionListTest, LinesFoldTheSameWhereverABlockEnds) {
    for (const std::string end : {"\r\n", "\r", "\n", "\r\n\r\n"}) {
        for (std::size_t before = Block - 40; before <= Block + 2; ++before) {
            const std::string line(before, 'x');
            const std::string blanks(end.size() == 4 ? 2 : 1, ' ');
            EXPECT_EQ(Folded(line + end + "y"), " " + line + blanks + "y") << before;
        }
    }
}

TEST_F(DefinitionListTest, AFileThatGrowsMeanwhileIsReadToItsEnd) {
    const std::string content(Block + 7, 'x');
    machine.AddFile(Path).Content("x");
    struct GrowingFile : MemoryFileSystem {
        using MemoryFileSystem::MemoryFileSystem;
        std::optional<std::uint64_t> GetFileSize(FileHandle) override { return 1; }
    };
    GrowingFile files(machine.Journal(), machine.disk);
    machine.AddFile(Path).Content(content);
    LoadDefinitionList(files, list, Path);
    EXPECT_EQ(list.Text(), " " + content);
}

TEST_F(DefinitionListTest, ALengthThatNoFileHasDoesNoHarm) {
    struct LyingFile : MemoryFileSystem {
        using MemoryFileSystem::MemoryFileSystem;
        std::optional<std::uint64_t> GetFileSize(FileHandle) override { return UINT64_MAX; }
    };
    LyingFile files(machine.Journal(), machine.disk);
    machine.AddFile(Path).Content("one\r\ntwo");
    LoadDefinitionList(files, list, Path);
    EXPECT_EQ(list.Text(), " one two");
}

// ---- Faults

TEST_F(DefinitionListTest, AFileThatCantBeOpenedOrMeasuredLeavesTheListAsItIs) {
    for (const std::string call : {"FindFirstFileA", "CreateFileA", "GetFileSize", "ReadFile"}) {
        machine.FailNext(call);
        EXPECT_EQ(Folded("one\r\ntwo\r\n"), "") << call;
    }
    machine.AddFile(Path).Unreadable();
    EXPECT_EQ(Folded("one"), "");
}

TEST_F(DefinitionListTest, AFaultPartWayKeepsTheWholeLinesSoFar) {
    struct FailingFile : MemoryFileSystem {
        using MemoryFileSystem::MemoryFileSystem;
        ErrorCode ReadFile(FileHandle file, std::span<std::uint8_t> buffer,
                           std::uint32_t& read) override {
            if (reads++ == 1) return error::AccessDenied;
            return MemoryFileSystem::ReadFile(file, buffer, read);
        }
        int reads = 0;
    };
    FailingFile files(machine.Journal(), machine.disk);
    const std::string first(1000, 'a');
    machine.AddFile(Path).Content(first + "\r\n" + std::string(2 * Block, 'b'));
    LoadDefinitionList(files, list, Path);
    EXPECT_EQ(list.Text(), " " + first);
    EXPECT_EQ(files.OpenFileCount(), 0u);

    // And the list still takes lines.
    Load(list, "0123456789abcdef0123456789abcdef");
    EXPECT_EQ(list.Text(), " " + first + " 0123456789abcdef0123456789abcdef");
    EXPECT_TRUE(ListContains(list, "0123456789abcdef0123456789abcdef"));
    EXPECT_FALSE(ListContains(list, std::string(32, 'b')));
}

// ---- Looking up

TEST_F(DefinitionListTest, NothingIsInAnEmptyList) {
    for (const char* item : {"", " ", "a", "0123456789abcdef0123456789abcdef"}) {
        EXPECT_FALSE(ListContains(list, item)) << item;
    }
}

TEST_F(DefinitionListTest, AnEmptyItemIsInNoList) {
    Load(list, "one");
    EXPECT_FALSE(ListContains(list, ""));
    EXPECT_FALSE(ListContains(list, std::string_view()));
}

TEST_F(DefinitionListTest, OneBlankIsInEveryListThatIsNotEmpty) {
    Load(list, "one");
    EXPECT_TRUE(ListContains(list, " "));
    EXPECT_FALSE(ListContains(list, "  "));
    Load(list, "\r\ntwo");
    EXPECT_TRUE(ListContains(list, "  "));
}

TEST_F(DefinitionListTest, AnyRunOfAnEntrysLettersMatches) {
    Load(list, "first\r\nabcdefgh\r\nlast");
    for (std::size_t from = 0; from < 8; ++from) {
        for (std::size_t count = 1; from + count <= 8; ++count) {
            EXPECT_TRUE(ListContains(list, std::string("abcdefgh").substr(from, count)));
        }
    }
    EXPECT_FALSE(ListContains(list, "abcdefgg"));
}

TEST_F(DefinitionListTest, AnItemWithABlankMatchesAcrossTwoLines) {
    Load(list, "c:\\program\r\nfiles\\bad.exe\r\n");
    EXPECT_TRUE(ListContains(list, "c:\\program files\\bad.exe"));
    EXPECT_TRUE(ListContains(list, "m f"));
    EXPECT_FALSE(ListContains(list, "mf"));
}

TEST_F(DefinitionListTest, UpperCaseEntriesNeverMatchLowerCaseItems) {
    Load(list, "0123456789ABCDEF0123456789ABCDEF\r\nBad");
    EXPECT_FALSE(ListContains(list, "0123456789abcdef0123456789abcdef"));
    EXPECT_FALSE(ListContains(list, "bad"));
    EXPECT_TRUE(ListContains(list, "Bad"));
}

TEST_F(DefinitionListTest, AnItemLongerThanTheListIsNotInIt) {
    Load(list, std::string(100, 'a'));
    EXPECT_TRUE(ListContains(list, " " + std::string(100, 'a')));
    EXPECT_FALSE(ListContains(list, std::string(101, 'a')));
}

TEST_F(DefinitionListTest, NulsAreBytesLikeOthers) {
    const std::string entry(
        "0123456789abcde\0"
        "0123456789abcdef",
        32);
    Load(list, "x\r\n" + entry + "\r\n");
    EXPECT_TRUE(ListContains(list, entry));
    EXPECT_TRUE(ListContains(list, std::string_view("\0", 1)));
    EXPECT_FALSE(ListContains(list, entry.substr(0, 15) + " " + entry.substr(16)));
}

TEST_F(DefinitionListTest, AgreesWithAPlainSearchInItsText) {
    std::mt19937 random(20040601);
    const auto below = [&random](std::size_t end) { return random() % end; };
    int found = 0;
    constexpr int Rounds = 1500;
    for (int round = 0; round < Rounds; ++round) {
        std::string content(below(600), ' ');
        for (char& c : content) c = "aab\\ \r\n"[below(7)];
        DefinitionList drawn;
        Load(drawn, content);
        const std::string text(drawn.Text());
        for (int i = 0; i < 10; ++i) {
            // A part of the text, sometimes with one byte changed or one more.
            std::string item = text.substr(below(text.size() + 1), below(70));
            if (below(3) == 0 && !item.empty()) item[below(item.size())] = 'a';
            if (below(9) == 0) item += text;
            const bool expected = !item.empty() && text.find(item) != std::string::npos;
            ASSERT_EQ(ListContains(drawn, item), expected) << text << "|" << item;
            found += expected;
        }
    }
    EXPECT_GT(found, 5 * Rounds);
    EXPECT_LT(found, 9 * Rounds);
}

// A list of many digests that is made while it is read.
struct GeneratedList : MemoryFileSystem {
    using MemoryFileSystem::MemoryFileSystem;
    static constexpr std::size_t EntryCount = 3'000'000;
    static constexpr std::size_t LineSize = 34;

    std::optional<std::uint64_t> GetFileSize(FileHandle) override { return EntryCount * LineSize; }
    ErrorCode ReadFile(FileHandle, std::span<std::uint8_t> buffer, std::uint32_t& read) override {
        read = 0;
        for (; read < buffer.size() && position < EntryCount * LineSize; ++read, ++position) {
            const std::size_t column = position % LineSize;
            if (column == 0) line = Entry(position / LineSize) + "\r\n";
            buffer[read] = static_cast<std::uint8_t>(line[column]);
        }
        return error::Success;
    }
    static std::string Entry(std::size_t number) {
        std::string entry(32, '0');
        std::uint64_t bits = number;
        for (std::size_t i = 0; i < entry.size(); ++i) {
            if (i % 16 == 0) bits = (bits + i + 1) * 0x9E3779B97F4A7C15u;
            entry[i] = "0123456789abcdef"[bits >> (60 - 4 * (i % 16)) & 0xF];
        }
        return entry;
    }

    std::size_t position = 0;
    std::string line;
};

TEST_F(DefinitionListTest, AListOf100MegabytesIsFoundInFromItsFirstToItsLastEntry) {
    constexpr std::size_t Entries = GeneratedList::EntryCount;
    const auto entry = GeneratedList::Entry;
    GeneratedList files(machine.Journal(), machine.disk);
    machine.AddFile(Path);
    LoadDefinitionList(files, list, Path);
    EXPECT_EQ(list.Text().size(), Entries * 33);
    for (std::size_t i = 0; i < Entries; i += 997) {
        ASSERT_TRUE(ListContains(list, entry(i))) << i;
        ASSERT_TRUE(ListContains(list, entry(i) + " " + entry(i + 1))) << i;
        ASSERT_FALSE(ListContains(list, entry(i) + " " + entry(i))) << i;
        ASSERT_FALSE(ListContains(list, entry(Entries + i))) << i;
    }
    EXPECT_TRUE(ListContains(list, entry(Entries - 1)));
}

}  // namespace
}  // namespace velkarix
