#include "shell/clsProcess.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/machine/MemoryMachine.h"
#include "tests/machine/VersionResourceBuilder.h"

namespace velkarix {
namespace {

using Strings = std::vector<std::string>;

const std::string Path = "C:\\WINDOWS\\tool.exe";

class clsProcessTest : public testing::Test {
  protected:
    void TearDown() override { EXPECT_EQ(machine.files.OpenSearchCount(), 0u); }

    MemoryEntry& File() { return machine.AddFile(Path).Created(2003, 5, 9, 23, 59); }
    Strings Facts(const std::string& path = Path) {
        facts.GetFileDescription(path);
        Strings values;
        for (int row = 0; row <= 12; ++row) values.push_back(facts.getItem(row));
        return values;
    }
    // Nothing in rows 0 to 11.
    static Strings OnlyDate(const std::string& date) {
        Strings values(13);
        values[12] = date;
        return values;
    }

    MemoryMachine machine;
    clsProcess facts{machine.Parts()};
};

const VersionResourceBuilder::Fields AllFields = {
    {"CompanyName", "Company"},       {"FileDescription", "Description"},
    {"FileVersion", "1.2"},           {"InternalName", "Internal"},
    {"OriginalFilename", "tool.exe"}, {"ProductName", "Product"},
    {"ProductVersion", "3.4"},        {"Comments", "Comment"},
    {"LegalCopyright", "\xA9 We"},    {"LegalTrademarks", "TM"},
    {"PrivateBuild", "private"},      {"SpecialBuild", "special"},
};

const Strings AllFacts = {"Product",  "3.4",     "Description", "1.2",     "Internal",
                          "tool.exe", "Comment", "Company",     "\xA9 We", "TM",
                          "private",  "special", "05/09/2003"};

TEST_F(clsProcessTest, ReadsTheTwelveFieldsAndTheCreationDate) {
    File().Version(AllFields);
    EXPECT_EQ(Facts(), AllFacts);
}

TEST_F(clsProcessTest, AsksTheSystemInThisOrder) {
    File().Version(AllFields);
    Facts();
    Strings calls = {"GetFileVersionInfoSizeA", "GetFileVersionInfoA"};
    calls.insert(calls.end(), 14, "VerQueryValueA");
    calls.insert(calls.end(), {"FindFirstFileA", "FindClose", "FileTimeToLocalFileTime",
                               "FileTimeToSystemTime"});
    EXPECT_EQ(machine.Journal().Names(), calls);
    const Strings queries = machine.Journal().ArgumentsOf("VerQueryValueA");
    EXPECT_EQ(queries[0], "\\");
    EXPECT_EQ(queries[1], "\\VarFileInfo\\Translation");
    EXPECT_EQ(queries[2], "\\StringFileInfo\\040904B0\\ProductName");
    EXPECT_EQ(queries[13], "\\StringFileInfo\\040904B0\\SpecialBuild");
}

TEST_F(clsProcessTest, AFileWithoutAResourceHasItsDateAlone) {
    File();
    EXPECT_EQ(Facts(), OnlyDate("05/09/2003"));
    EXPECT_EQ(machine.Journal().CountOf("GetFileVersionInfoA"), 0u);
}

TEST_F(clsProcessTest, AMissingFileHasNoFactsAtAll) {
    File().Version(AllFields);
    Facts();
    EXPECT_EQ(Facts("C:\\WINDOWS\\missing.exe"), Strings(13));
    EXPECT_EQ(Facts(""), Strings(13));
}

TEST_F(clsProcessTest, FieldsThatTheResourceLacksStayEmpty) {
    File().Version({{"CompanyName", "Company"}});
    Strings expected = OnlyDate("05/09/2003");
    expected[7] = "Company";
    EXPECT_EQ(Facts(), expected);
}

TEST_F(clsProcessTest, NothingStaysOfTheFileBefore) {
    File().Version(AllFields);
    machine.AddFile("C:\\WINDOWS\\other.exe").Created(2001, 1, 2).Version({{"Comments", "C"}});
    Facts();
    Strings expected = OnlyDate("01/02/2001");
    expected[6] = "C";
    EXPECT_EQ(Facts("C:\\WINDOWS\\other.exe"), expected);
}

TEST_F(clsProcessTest, AFileWithoutATranslationTableHasItsDateAlone) {
    File().VersionBlock(VersionResourceBuilder().Strings("040904B0", AllFields).Build());
    EXPECT_EQ(Facts(), OnlyDate("05/09/2003"));
}

TEST_F(clsProcessTest, OnlyTheFirstTranslationCounts) {
    File().VersionBlock(VersionResourceBuilder()
                            .Translation(0x0407, 0x04E4)
                            .Translation(0x0409, 0x04B0)
                            .Strings("040904B0", AllFields)
                            .Build());
    EXPECT_EQ(Facts(), OnlyDate("05/09/2003"));
}

TEST_F(clsProcessTest, TheLanguageKeyIsPaddedAndInCapitals) {
    File().VersionBlock(VersionResourceBuilder()
                            .Translation(0x0C0A, 0x0009)
                            .Strings("0C0A0009", AllFields)
                            .Build());
    EXPECT_EQ(Facts(), AllFacts);
    EXPECT_EQ(machine.Journal().ArgumentsOf("VerQueryValueA")[2],
              "\\StringFileInfo\\0C0A0009\\ProductName");
}

// ---- Resources that lie, and failures

TEST_F(clsProcessTest, BrokenResourcesLeaveTheDateAlone) {
    const Bytes whole =
        VersionResourceBuilder().Translation(0x0409, 0x04B0).Strings("040904B0", AllFields).Build();
    for (std::size_t size = 0; size < whole.size(); size += 7) {
        File().VersionBlock(
            Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)));
        EXPECT_EQ(Facts()[12], "05/09/2003") << size;
    }
    for (std::size_t at = 0; at < whole.size(); ++at) {
        Bytes broken = whole;
        broken[at] = 0xFF;
        File().VersionBlock(broken);
        EXPECT_EQ(Facts()[12], "05/09/2003") << at;
    }
}

// Version resources that claim whatever a test says.
struct LyingResources : VersionResources {
    std::uint32_t GetFileVersionInfoSizeA(const std::string&) override { return size; }
    std::optional<Bytes> GetFileVersionInfoA(const std::string&, std::uint32_t) override {
        ++reads;
        return Bytes{1};
    }
    std::optional<Bytes> VerQueryValueA(const Bytes&, const std::string& subBlock) override {
        return subBlock == "\\VarFileInfo\\Translation" ? translation : text;
    }

    std::uint32_t size = 100;
    int reads = 0;
    std::optional<Bytes> translation = Bytes{9, 4, 0xB0, 4};
    std::optional<Bytes> text = Bytes{'x', 0};
};

class LyingResourcesTest : public clsProcessTest {
  protected:
    LyingResources lying;
    Machine real = machine.Parts();
    Machine parts{real.registry,  real.profileFiles, lying,        real.files,
                  real.clock,     real.processes,    real.token,   real.shell,
                  real.shortcuts, real.system,       real.windows, real.cryptography};
    clsProcess lyingFacts{parts};
};

TEST_F(LyingResourcesTest, ASizeThatNoResourceHasIsNone) {
    for (const std::uint32_t size : {0u, 0x80000000u, 0xFFFFFFFFu, 100'000'000u}) {
        lying.size = size;
        lyingFacts.GetFileDescription(Path);
        EXPECT_EQ(lyingFacts.getItem(0), "") << size;
    }
    EXPECT_EQ(lying.reads, 0);
}

TEST_F(LyingResourcesTest, ATranslationOfLessThanFourBytesIsNone) {
    for (const Bytes& translation : {Bytes{}, Bytes{9}, Bytes{9, 4, 0xB0}}) {
        lying.translation = translation;
        lyingFacts.GetFileDescription(Path);
        EXPECT_EQ(lyingFacts.getItem(0), "");
    }
}

TEST_F(LyingResourcesTest, ATextEndsAtItsNulOrWithItsBytes) {
    lying.text = Bytes{'a', 'b', 0, 'c'};
    lyingFacts.GetFileDescription(Path);
    EXPECT_EQ(lyingFacts.getItem(0), "ab");
    lying.text = Bytes{'a', 0xE4};
    lyingFacts.GetFileDescription(Path);
    EXPECT_EQ(lyingFacts.getItem(0), "a\xE4");
    lying.text = Bytes{};
    lyingFacts.GetFileDescription(Path);
    EXPECT_EQ(lyingFacts.getItem(0), "");
}

TEST_F(clsProcessTest, WhatFailsIsEmptyAndTheRestIsRead) {
    File().Version(AllFields);
    for (const std::string call : {"GetFileVersionInfoSizeA", "GetFileVersionInfoA"}) {
        machine.FailNext(call);
        EXPECT_EQ(Facts(), OnlyDate("05/09/2003")) << call;
    }
    Strings withoutDate = AllFacts;
    withoutDate[12] = "";
    for (const std::string call :
         {"FindFirstFileA", "FileTimeToLocalFileTime", "FileTimeToSystemTime"}) {
        machine.FailNext(call);
        EXPECT_EQ(Facts(), withoutDate) << call;
    }
    machine.FailNext("VerQueryValueA");  // that of the fixed block, which nobody needs
    EXPECT_EQ(Facts(), AllFacts);
}

// ---- The date

TEST_F(clsProcessTest, TheDateIsInLocalTime) {
    File();
    machine.clock.SetUtcOffset(60);
    EXPECT_EQ(Facts()[12], "05/10/2003");
    machine.clock.SetUtcOffset(-24 * 60);
    EXPECT_EQ(Facts()[12], "05/08/2003");
}

TEST_F(clsProcessTest, AFileWithoutACreationTimeShowsTheFirstDayOfTheDisksCalendar) {
    machine.AddFile(Path).Created(0);
    EXPECT_EQ(Facts()[12], "01/01/1601");
}

TEST_F(clsProcessTest, HiddenFilesAndFoldersHaveADateToo) {
    File().Hidden().With(fileAttribute::System);
    EXPECT_EQ(Facts()[12], "05/09/2003");
    machine.AddFolder("C:\\WINDOWS\\Sub").Created(2002, 12, 31);
    EXPECT_EQ(Facts("C:\\WINDOWS\\Sub")[12], "12/31/2002");
}

// ---- Rows

TEST_F(clsProcessTest, AllRowsAreEmptyAtFirst) {
    for (int row = 0; row <= 12; ++row) EXPECT_EQ(facts.getItem(row), "");
}

TEST_F(clsProcessTest, ARowThatDoesntExistIsAFault) {
    EXPECT_THROW(facts.getItem(13), std::out_of_range);
    EXPECT_THROW(facts.getItem(-1), std::out_of_range);
}

}  // namespace
}  // namespace velkarix
