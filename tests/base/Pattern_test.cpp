#include "base/Pattern.h"

#include <gtest/gtest.h>

#include <string>

namespace velkarix {
namespace {

TEST(MatchesPattern, TakesAStarForAnyRun) {
    EXPECT_TRUE(MatchesPattern("abc", "a*c"));
    EXPECT_TRUE(MatchesPattern("ac", "a*c"));
    EXPECT_TRUE(MatchesPattern("a-c-c", "a*c"));
    EXPECT_FALSE(MatchesPattern("a-c-d", "a*c"));
}

TEST(MatchesPattern, TakesAQuestionMarkForExactlyOneCharacter) {
    EXPECT_TRUE(MatchesPattern("abc", "a?c"));
    EXPECT_FALSE(MatchesPattern("ac", "a?c"));
}

TEST(MatchesPattern, WantsTheWholeTextToFit) {
    EXPECT_FALSE(MatchesPattern("abcd", "abc"));
    EXPECT_FALSE(MatchesPattern("abc", "abcd"));
    EXPECT_TRUE(MatchesPattern("abc", "abc*"));
    EXPECT_TRUE(MatchesPattern("", "*"));
    EXPECT_FALSE(MatchesPattern("", "?"));
}

TEST(MatchesPattern, ComparesWithCase) {
    EXPECT_FALSE(MatchesPattern("ABC", "a*"));
}

TEST(MatchesPattern, EndsSoonOnManyStars) {
    EXPECT_FALSE(MatchesPattern(std::string(20000, 'a'), "*a*a*a*a*a*a*b"));
}

}  // namespace
}  // namespace velkarix
