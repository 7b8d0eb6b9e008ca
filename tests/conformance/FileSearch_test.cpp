#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/conformance/Home.h"

namespace velkarix {

class SearchConformance : public Conformance {
  protected:
    // All names that a search gives, in its order.
    std::vector<std::string> Names(const std::string& pattern) {
        std::vector<std::string> names;
        FoundFile found;
        const SearchHandle search = files_.FindFirstFileA(pattern, found);
        for (bool more = search != 0; more; more = files_.FindNextFileA(search, found)) {
            names.push_back(found.name);
        }
        if (search != 0) {
            EXPECT_TRUE(files_.FindClose(search));
        }
        return names;
    }

    FileSystem& files_ = machine_.files;
};

INSTANTIATE_TEST_SUITE_P(Home, SearchConformance, testing::ValuesIn(FamiliesOfHome()),
                         NameOfFamily);

TEST_P(SearchConformance, AFolderListsItselfItsParentAndThenItsFilesByName) {
    home_->MakeFile(In("beta.txt"), "");
    home_->MakeFile(In("Gamma.txt"), "");
    home_->MakeFile(In("alpha.txt"), "");
    files_.CreateDirectoryA(In("Folder"));
    EXPECT_EQ(Names(In("*")), (std::vector<std::string>{".", "..", "alpha.txt", "beta.txt",
                                                        "Folder", "Gamma.txt"}));
    EXPECT_EQ(Names(In("*.*")), Names(In("*")));
}

TEST_P(SearchConformance, AnEmptyFolderListsTheTwoDots) {
    EXPECT_EQ(Names(In("*")), (std::vector<std::string>{".", ".."}));
}

TEST_P(SearchConformance, PatternsFitWithoutCase) {
    home_->MakeFile(In("One.PRC"), "");
    home_->MakeFile(In("two.prc"), "");
    home_->MakeFile(In("three.txt"), "");
    EXPECT_EQ(Names(In("*.prc")), (std::vector<std::string>{"One.PRC", "two.prc"}));
    EXPECT_EQ(Names(In("T*")), (std::vector<std::string>{"three.txt", "two.prc"}));
    EXPECT_EQ(Names(In("t?o.p*c")), (std::vector<std::string>{"two.prc"}));
    EXPECT_EQ(Names(In("*.none")), std::vector<std::string>());
}

TEST_P(SearchConformance, AQuestionMarkStandsForOneCharacter) {
    // At the end of a name Windows lets it stand for none as well, Wine doesn't.
    for (const char* name : {"b.txt", "ab.txt", "aab.txt"}) {
        home_->MakeFile(In(name), "");
    }
    EXPECT_EQ(Names(In("?b.txt")), std::vector<std::string>{"ab.txt"});
    EXPECT_EQ(Names(In("?a?.txt")), std::vector<std::string>{"aab.txt"});
}

TEST_P(SearchConformance, APatternWithoutWildcardFindsTheOneEntryInItsOwnSpelling) {
    home_->MakeFile(In("MixedCase.txt"), "12345");
    files_.CreateDirectoryA(In("Folder"));
    EXPECT_EQ(Names(In("mixedcase.TXT")), std::vector<std::string>{"MixedCase.txt"});
    EXPECT_EQ(Names(In("FOLDER")), std::vector<std::string>{"Folder"});
    EXPECT_EQ(Names(In("missing")), std::vector<std::string>());
}

TEST_P(SearchConformance, BlanksAndDotsAtTheEndOfANameDoNotCount) {
    home_->MakeFile(In("file.txt"), "abc");
    for (const char* name : {"file.txt.", "file.txt ", "file.txt. ."}) {
        FoundFile found;
        const SearchHandle search = machine_.files.FindFirstFileA(In(name), found);
        EXPECT_NE(search, 0u) << name;
        EXPECT_EQ(found.name, "file.txt") << name;
        machine_.files.FindClose(search);
    }
}

TEST_P(SearchConformance, AShortNameIsFoundUnderItsLongOne) {
    home_->MakeFile(In("a rather long name.text"), "");
    const std::string shortPath = home_->ShortPathOf(In("a rather long name.text"));
    ASSERT_NE(shortPath, In("a rather long name.text"));
    EXPECT_EQ(Names(shortPath), std::vector<std::string>{"a rather long name.text"});
    EXPECT_EQ(files_.PathFileExistsA(shortPath), true);
    EXPECT_EQ(Names(In("*~*")), std::vector<std::string>{"a rather long name.text"});
}

TEST_P(SearchConformance, AnEntryTellsItsSizeAttributesAndCreationTime) {
    home_->MakeFile(In("file.txt"), "12345", fileAttribute::ReadOnly | fileAttribute::Hidden);
    FoundFile found;
    const SearchHandle search = files_.FindFirstFileA(In("file.txt"), found);
    ASSERT_NE(search, 0u);
    EXPECT_EQ(found.size, 5u);
    constexpr std::uint32_t asked =
        fileAttribute::ReadOnly | fileAttribute::Hidden | fileAttribute::Directory;
    EXPECT_EQ(found.attributes & asked, fileAttribute::ReadOnly | fileAttribute::Hidden);
    const auto created = machine_.clock.FileTimeToSystemTime(found.creationTime);
    ASSERT_TRUE(created.has_value());
    EXPECT_GE(created->year, 2003);
    EXPECT_FALSE(files_.FindNextFileA(search, found));
    EXPECT_TRUE(files_.FindClose(search));
}

TEST_P(SearchConformance, AFolderIsMarkedAsOne) {
    files_.CreateDirectoryA(In("Folder"));
    FoundFile found;
    const SearchHandle search = files_.FindFirstFileA(In("Folder"), found);
    ASSERT_NE(search, 0u);
    EXPECT_NE(found.attributes & fileAttribute::Directory, 0u);
    files_.FindClose(search);
}

TEST_P(SearchConformance, ASearchDoesNotGoWhereThereIsNoFolder) {
    home_->MakeFile(In("file.txt"), "");
    FoundFile found;
    EXPECT_EQ(files_.FindFirstFileA(In("missing\\*"), found), 0u);
    EXPECT_EQ(files_.FindFirstFileA(In("file.txt\\*"), found), 0u);
    EXPECT_EQ(files_.FindFirstFileA(home_->MissingDrive() + "\\*", found), 0u);
    EXPECT_EQ(files_.FindFirstFileA(folder_ + "\\", found), 0u);
    EXPECT_EQ(files_.FindFirstFileA("", found), 0u);
}

TEST_P(SearchConformance, TheRootOfADriveHasNoDots) {
    for (const std::string& name : Names(folder_.substr(0, 3) + "*")) {
        EXPECT_NE(name, ".");
        EXPECT_NE(name, "..");
    }
}

TEST_P(SearchConformance, TheRootOfADriveIsNoEntry) {
    FoundFile found;
    EXPECT_EQ(files_.FindFirstFileA(folder_.substr(0, 3), found), 0u);
}

TEST_P(SearchConformance, ClosingNoSearchFails) {
    EXPECT_FALSE(files_.FindClose(0));
}

}  // namespace velkarix
