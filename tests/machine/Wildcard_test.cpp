#include "tests/machine/Wildcard.h"

#include <gtest/gtest.h>

#include <string>

namespace velkarix {
namespace {

TEST(FitsPattern, StandsForAnyRunOfCharactersAndForOne) {
    EXPECT_TRUE(FitsPattern("setup.exe", "setup.exe"));
    EXPECT_TRUE(FitsPattern("Setup.EXE", "s*.exe"));
    EXPECT_TRUE(FitsPattern("setup.exe", "*"));
    EXPECT_TRUE(FitsPattern("setup.exe", "set??.e*e"));
    EXPECT_TRUE(FitsPattern("ababac", "a*bac"));
    EXPECT_TRUE(FitsPattern("a", "a**"));
    EXPECT_FALSE(FitsPattern("setup.exe", "setup"));
    EXPECT_FALSE(FitsPattern("setup", "setup?"));
    EXPECT_FALSE(FitsPattern("setup.exe", "*.com"));
    EXPECT_FALSE(FitsPattern("", "?"));
}

TEST(FitsPattern, TakesAPointInAPatternOfAllNamesForNone) {
    EXPECT_TRUE(FitsPattern("noending", "*.*"));
    EXPECT_FALSE(FitsPattern("noending", "*.*x"));
}

// What tries every share of the letters among the asterisks wouldn't come back.
TEST(FitsPattern, ComesToAnEndWithManyAsterisks) {
    std::string pattern;
    for (int i = 0; i < 50; ++i) pattern += "*a";
    EXPECT_FALSE(FitsPattern(std::string(200, 'a') + "b", pattern));
}

}  // namespace
}  // namespace velkarix
