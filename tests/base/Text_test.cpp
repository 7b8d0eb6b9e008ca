#include "base/Text.h"

#include <gtest/gtest.h>

namespace velkarix {
namespace {

using namespace std::string_literals;

TEST(TrimAtNull, CutsAtTheFirstNul) {
    EXPECT_EQ(TrimAtNull("ab\0cd\0"s), "ab");
}

TEST(TrimAtNull, KeepsATextWithoutNul) {
    EXPECT_EQ(TrimAtNull("ab cd "), "ab cd ");
}

TEST(TrimAtNull, MakesATextThatBeginsWithNulEmpty) {
    EXPECT_EQ(TrimAtNull("\0ab"s), "");
}

TEST(ToLower, FoldsTheLettersAToZAlone) {
    EXPECT_EQ(ToLower("C:\\PROGRAM Files\\[Z].EXE"), "c:\\program files\\[z].exe");
}

TEST(ToLower, LeavesBytesAbove127AsTheyAre) {
    EXPECT_EQ(ToLower("\xC4\xD6 A"), "\xC4\xD6 a");
}

TEST(IsCharacter, IsFalseBehindAByteOfTheUpperHalf) {
    const std::string text = "\\a\\\x81\\\\";
    EXPECT_TRUE(IsCharacter(text, 0));
    EXPECT_TRUE(IsCharacter(text, 2));
    EXPECT_FALSE(IsCharacter(text, 4));
    EXPECT_TRUE(IsCharacter(text, 5));
    EXPECT_TRUE(IsCharacter("\x7F\\", 1));
    EXPECT_FALSE(IsCharacter("\x80\\", 1));
}

TEST(CompareIgnoringCase, TakesUpperAndLowerCaseForTheSame) {
    EXPECT_EQ(CompareIgnoringCase("Explorer.EXE", "explorer.exe"), 0);
    EXPECT_TRUE(EqualIgnoringCase("", ""));
}

TEST(CompareIgnoringCase, OrdersByBytesOnceFolded) {
    EXPECT_LT(CompareIgnoringCase("a", "B"), 0);
    EXPECT_GT(CompareIgnoringCase("\xE4", "z"), 0);
    EXPECT_GT(CompareIgnoringCase("B", "a"), 0);
}

TEST(CompareIgnoringCase, PutsAPrefixFirst) {
    EXPECT_LT(CompareIgnoringCase("ab", "ABC"), 0);
    EXPECT_GT(CompareIgnoringCase("ABC", "ab"), 0);
}

TEST(HoldsIgnoringCase, FindsAPartAnywhereInAnyCase) {
    EXPECT_TRUE(HoldsIgnoringCase("Lathe.EXE", "LATHE"));
    EXPECT_TRUE(HoldsIgnoringCase("Lathe.EXE", ".exe"));
    EXPECT_TRUE(HoldsIgnoringCase("Lathe.EXE", ""));
    EXPECT_TRUE(HoldsIgnoringCase("", ""));
    EXPECT_FALSE(HoldsIgnoringCase("Lathe.EXE", "lathes"));
    EXPECT_FALSE(HoldsIgnoringCase("", "a"));
}

TEST(HoldsIgnoringCase, LeavesBytesAbove127AsTheyAre) {
    EXPECT_TRUE(HoldsIgnoringCase("a\xC4", "\xC4"));
    EXPECT_FALSE(HoldsIgnoringCase("a\xC4", "\xE4"));
}

}  // namespace
}  // namespace velkarix
