#include <gtest/gtest.h>

#include <string>

#include "tests/conformance/Home.h"

namespace velkarix {

class ProfileConformance : public Conformance {
  protected:
    std::string Get(const std::string& section, const std::string& key,
                    const std::string& fallback = "(missing)", std::uint32_t capacity = 255) {
        return profiles_.GetPrivateProfileStringA(section, key, fallback, capacity, file_);
    }
    bool Write(const std::string& section, const std::string& key, const std::string& value) {
        return profiles_.WritePrivateProfileStringA(section, key, value, file_);
    }

    ProfileFiles& profiles_ = machine_.profileFiles;
    std::string file_ = In("settings.ini");
};

INSTANTIATE_TEST_SUITE_P(Home, ProfileConformance, testing::ValuesIn(FamiliesOfHome()),
                         NameOfFamily);

TEST_P(ProfileConformance, SectionsAndKeysAreFoundWithoutCase) {
    home_->MakeFile(file_, "[Main]\r\nSusColor=255\r\n");
    EXPECT_EQ(Get("MAIN", "suscolor"), "255");
}

TEST_P(ProfileConformance, TheFallbackStandsForWhatIsMissing) {
    EXPECT_EQ(Get("Main", "Key"), "(missing)");
    home_->MakeFile(file_, "[Main]\r\nOther=1\r\n");
    EXPECT_EQ(Get("Main", "Key"), "(missing)");
    EXPECT_EQ(Get("Update", "Other"), "(missing)");
    EXPECT_EQ(Get("Main", "Key", ""), "");
}

TEST_P(ProfileConformance, ReadingMakesNoFile) {
    Get("Main", "Key");
    EXPECT_EQ(machine_.files.GetFileAttributesA(file_), fileAttribute::Invalid);
}

TEST_P(ProfileConformance, BlanksBehindTheFallbackAreDropped) {
    EXPECT_EQ(Get("Main", "Key", " kept  "), " kept");
}

TEST_P(ProfileConformance, AnEmptyValueIsNotAMissingOne) {
    home_->MakeFile(file_, "[Main]\r\nKey=\r\n");
    EXPECT_EQ(Get("Main", "Key"), "");
}

TEST_P(ProfileConformance, BlanksAroundNamesAndValuesAreDropped) {
    home_->MakeFile(file_, "  [Main]  \r\n \tKey \t= \t two words \t\r\n");
    EXPECT_EQ(Get("Main", "Key"), "two words");
}

TEST_P(ProfileConformance, OnePairOfQuotesIsDropped) {
    home_->MakeFile(file_,
                    "[Main]\r\nDouble=\" kept \"\r\nSingle='x'\r\nTwice=\"\"y\"\"\r\n"
                    "Mixed=\"z'\r\nOpen=\"w\r\nNone=\"\"\r\n");
    EXPECT_EQ(Get("Main", "Double"), " kept ");
    EXPECT_EQ(Get("Main", "Single"), "x");
    EXPECT_EQ(Get("Main", "Twice"), "\"y\"");
    EXPECT_EQ(Get("Main", "Mixed"), "\"z'");
    EXPECT_EQ(Get("Main", "Open"), "\"w");
    EXPECT_EQ(Get("Main", "None"), "");
}

TEST_P(ProfileConformance, OnlyTheFirstEqualsSignEndsTheName) {
    home_->MakeFile(file_, "[Main]\r\nKey=a=b=c\r\n");
    EXPECT_EQ(Get("Main", "Key"), "a=b=c");
}

TEST_P(ProfileConformance, AValueIsCutToTheBufferWithItsNul) {
    home_->MakeFile(file_, "[Main]\r\nKey=" + std::string(300, 'v') + "\r\n");
    EXPECT_EQ(Get("Main", "Key", "", 255), std::string(254, 'v'));
    EXPECT_EQ(Get("Main", "Key", "", 2), "v");
    EXPECT_EQ(Get("Main", "Key", "", 1), "");
    EXPECT_EQ(Get("Main", "Key", "", 0), "");
    EXPECT_EQ(Get("Main", "Missing", "fallback", 5), "fall");
}

TEST_P(ProfileConformance, AHugeLineIsReadToTheBuffersSize) {
    home_->MakeFile(file_, "[Main]\r\nLong=" + std::string(20000, 'v') + "\r\nNext=1\r\n");
    EXPECT_EQ(Get("Main", "Long", "", 255), std::string(254, 'v'));
    EXPECT_EQ(Get("Main", "Next"), "1");
}

TEST_P(ProfileConformance, LinesThatAreNeitherSectionNorValueAreSkipped) {
    home_->MakeFile(file_,
                    "loose\r\n[Main]\r\n; Key=comment\r\nnonsense\r\n=nameless\r\n\x01\xFF\r\n"
                    "\r\nKey=1\r\n");
    EXPECT_EQ(Get("Main", "Key"), "1");
}

TEST_P(ProfileConformance, ANameWithoutEqualsSignIsNoKey) {
    home_->MakeFile(file_, "[Main]\r\nKey\r\n");
    EXPECT_EQ(Get("Main", "Key"), "(missing)");
}

TEST_P(ProfileConformance, ASectionsHeadEndsWithItsBracket) {
    home_->MakeFile(file_, "[Main] text behind\r\nKey=1\r\n[Open\r\nKey=2\r\n");
    EXPECT_EQ(Get("Main", "Key"), "1");
    EXPECT_EQ(Get("Open", "Key"), "(missing)");
}

TEST_P(ProfileConformance, BlanksInsideTheBracketsDoNotCount) {
    home_->MakeFile(file_, "[ Main ]\r\nKey=1\r\n");
    EXPECT_EQ(Get("Main", "Key"), "1");
}

TEST_P(ProfileConformance, BareLineFeedsEndLinesToo) {
    home_->MakeFile(file_, "[Main]\nKey=1\nOther=2");
    EXPECT_EQ(Get("Main", "Key"), "1");
    EXPECT_EQ(Get("Main", "Other"), "2");
}

TEST_P(ProfileConformance, TheFirstOfTwoEqualNamesCounts) {
    home_->MakeFile(file_, "[Main]\r\nKey=1\r\nKey=2\r\n[Other]\r\n[main]\r\nKey=3\r\nLate=4\r\n");
    EXPECT_EQ(Get("Main", "Key"), "1");
    EXPECT_EQ(Get("Main", "Late"), "(missing)");
}

TEST_P(ProfileConformance, AKeyBelongsToTheSectionAboveIt) {
    home_->MakeFile(file_, "Key=0\r\n[One]\r\nKey=1\r\n[Two]\r\nKey=2\r\n");
    EXPECT_EQ(Get("One", "Key"), "1");
    EXPECT_EQ(Get("Two", "Key"), "2");
}

TEST_P(ProfileConformance, AccentedTextComesBackAsItWas) {
    ASSERT_TRUE(Write("Main", "Key", "caf\xE9"));
    EXPECT_EQ(Get("Main", "Key"), "caf\xE9");
}

TEST_P(ProfileConformance, WritingMakesTheFileAndTheSection) {
    ASSERT_TRUE(Write("Main", "FirstRun", "1"));
    EXPECT_EQ(home_->ContentOf(file_), "[Main]\r\nFirstRun=1\r\n");
    EXPECT_EQ(Get("Main", "FirstRun"), "1");
}

TEST_P(ProfileConformance, WritingReplacesAValueInItsPlace) {
    home_->MakeFile(file_, "[Main]\r\nFirst=1\r\nSecond=2\r\n[Other]\r\nFirst=9\r\n");
    ASSERT_TRUE(Write("main", "FIRST", "changed"));
    EXPECT_EQ(Get("Main", "First"), "changed");
    EXPECT_EQ(Get("Main", "Second"), "2");
    EXPECT_EQ(Get("Other", "First"), "9");
    const std::string content = home_->ContentOf(file_);
    EXPECT_LT(content.find("First=changed"), content.find("Second=2"));
}

TEST_P(ProfileConformance, ANewKeyGoesBehindTheOthersOfItsSection) {
    home_->MakeFile(file_, "[Main]\r\nFirst=1\r\n[Other]\r\nKey=9\r\n");
    ASSERT_TRUE(Write("Main", "Second", "2"));
    EXPECT_EQ(home_->ContentOf(file_), "[Main]\r\nFirst=1\r\nSecond=2\r\n[Other]\r\nKey=9\r\n");
}

TEST_P(ProfileConformance, ANewKeyGoesBeforeTheBlankLinesOfItsSection) {
    home_->MakeFile(file_, "[Main]\r\nFirst=1\r\n\r\n[Other]\r\nKey=9\r\n");
    ASSERT_TRUE(Write("Main", "Second", "2"));
    // Wine drops the blank line, Windows keeps it.
    const std::string content = home_->ContentOf(file_);
    EXPECT_TRUE(content.starts_with("[Main]\r\nFirst=1\r\nSecond=2\r\n")) << content;
    EXPECT_TRUE(content.ends_with("[Other]\r\nKey=9\r\n")) << content;
}

TEST_P(ProfileConformance, ANewSectionGoesBehindTheOthers) {
    home_->MakeFile(file_, "[Main]\r\nKey=1");
    ASSERT_TRUE(Write("Update", "Last", "2"));
    EXPECT_EQ(Get("Main", "Key"), "1");
    EXPECT_EQ(Get("Update", "Last"), "2");
    const std::string content = home_->ContentOf(file_);
    EXPECT_LT(content.find("[Main]"), content.find("[Update]"));
}

TEST_P(ProfileConformance, WritingKeepsCommentsAndStrangeLines) {
    home_->MakeFile(file_, "; above\r\n[Main]\r\n; note\r\nstrange\r\nKey=1\r\n");
    ASSERT_TRUE(Write("Main", "Key", "2"));
    EXPECT_EQ(home_->ContentOf(file_), "; above\r\n[Main]\r\n; note\r\nstrange\r\nKey=2\r\n");
}

TEST_P(ProfileConformance, AnEmptyTextIsWrittenAsAnEmptyValue) {
    ASSERT_TRUE(Write("Main", "Key", ""));
    EXPECT_EQ(Get("Main", "Key"), "");
}

TEST_P(ProfileConformance, WrittenQuotesAndBlanksAreReadByTheRules) {
    ASSERT_TRUE(Write("Main", "Quoted", "\"kept inside\""));
    ASSERT_TRUE(Write("Main", "Blanks", "  trimmed  "));
    EXPECT_EQ(Get("Main", "Quoted"), "kept inside");
    EXPECT_EQ(Get("Main", "Blanks"), "trimmed");
}

TEST_P(ProfileConformance, AReadOnlyFileIsNotWritten) {
    if (!home_->KeepsReadOnly()) {
        GTEST_SKIP() << "this user may write read-only files";
    }
    home_->MakeFile(file_, "[Main]\r\nKey=1\r\n", fileAttribute::ReadOnly);
    EXPECT_FALSE(Write("Main", "Key", "2"));
    EXPECT_EQ(home_->ContentOf(file_), "[Main]\r\nKey=1\r\n");
    EXPECT_EQ(Get("Main", "Key"), "1");
}

TEST_P(ProfileConformance, AFileThatSomebodyHoldsForHimselfIsNeitherReadNorWritten) {
    home_->MakeFile(file_, "[Main]\r\nKey=1\r\n");
    home_->Lock(file_);
    EXPECT_EQ(Get("Main", "Key"), "(missing)");
    EXPECT_FALSE(Write("Main", "Key", "2"));
}

TEST_P(ProfileConformance, AFileInAMissingFolderIsNotWritten) {
    file_ = In("missing\\settings.ini");
    EXPECT_FALSE(Write("Main", "Key", "1"));
    EXPECT_EQ(Get("Main", "Key"), "(missing)");
}

}  // namespace velkarix
