#include "shell/GramIndex.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace velkarix {
namespace {

constexpr std::size_t Shortest = GramIndex::ShortestItem;

std::string RandomText(std::mt19937& random, std::size_t size, int letters) {
    std::string text(size, ' ');
    for (char& c : text) c = "ab 0\0\xff"[random() % static_cast<unsigned>(letters)];
    return text;
}

// An item that is part of the text, one that nearly is, or one that has nothing to do with it.
std::string RandomItem(std::mt19937& random, const std::string& text) {
    const std::size_t size = Shortest + random() % 60;
    std::string item = RandomText(random, size, 2);
    if (random() % 4 != 0 && text.size() >= size) {
        item = text.substr(random() % (text.size() - size + 1), size);
        if (random() % 2 != 0) item[random() % size] ^= 1;
    }
    return item;
}

TEST(GramIndexTest, AgreesWithAPlainSearch) {
    std::mt19937 random(20040601);
    int found = 0;
    int missing = 0;
    for (int round = 0; round < 3000; ++round) {
        const std::string text = RandomText(random, random() % 2500, 2 + round % 5);
        GramIndex index;
        if (round % 2 == 0) index.Reserve(text.size());
        // The text comes in a few pieces.
        for (std::size_t size = 0; size < text.size();) {
            size = std::min(text.size(), size + 1 + random() % 900);
            index.Extend(std::string_view(text).substr(0, size));
        }
        for (int i = 0; i < 20; ++i) {
            const std::string item = RandomItem(random, text);
            const bool expected = text.find(item) != std::string::npos;
            const std::optional<bool> answer = index.Contains(text, item);
            if (!answer) continue;
            ASSERT_EQ(*answer, expected) << "round " << round;
            ++(expected ? found : missing);
        }
    }
    EXPECT_GT(found, 10'000);
    EXPECT_GT(missing, 10'000);
}

TEST(GramIndexTest, FindsAnItemAtEveryPlace) {
    std::mt19937 random(1);
    const std::string text = RandomText(random, 500, 6);
    GramIndex index;
    index.Extend(text);
    for (std::size_t from = 0; from + Shortest <= text.size(); ++from) {
        for (const std::size_t size : {Shortest, Shortest + 1, text.size() - from}) {
            EXPECT_EQ(index.Contains(text, text.substr(from, size)), true) << from;
        }
    }
}

TEST(GramIndexTest, CantTellOfItemsThatMayLieBetweenTwoSamples) {
    const std::string text(200, 'x');
    GramIndex index;
    index.Extend(text);
    EXPECT_EQ(index.Contains(text, std::string(Shortest - 1, 'y')), std::nullopt);
    EXPECT_EQ(index.Contains(text, std::string(Shortest, 'y')), false);
}

TEST(GramIndexTest, NothingLongerThanTheTextIsInIt) {
    GramIndex index;
    EXPECT_EQ(index.Contains("", std::string(Shortest, 'x')), false);
    const std::string text(Shortest, 'x');
    index.Extend(text);
    EXPECT_EQ(index.Contains(text, text + "x"), false);
    EXPECT_EQ(index.Contains(text, text), true);
}

TEST(GramIndexTest, GivesUpOnATextThatRepeatsItself) {
    const std::string text(1'000'000, 'x');
    GramIndex index;
    index.Extend(text);
    EXPECT_EQ(index.Contains(text, std::string(Shortest, 'x')), true);
    EXPECT_EQ(index.Contains(text, std::string(Shortest, 'x').append("y")), std::nullopt);
}

// The sanitizers fill the memory that it grows into.
TEST(GramIndexTest, KnowsWhereAChainEndsWhenItGrowsBeforeItsFirstSample) {
    std::mt19937 random(3);
    const std::string text = RandomText(random, 1000, 6);
    GramIndex index;
    index.Reserve(1);
    index.Extend(text);
    EXPECT_EQ(index.Contains(text, text.substr(500, 40)), true);
    EXPECT_EQ(index.Contains(text, std::string(32, 'z')), false);
}

TEST(GramIndexTest, GrowsWithATextThatNobodyAnnounced) {
    std::mt19937 random(2);
    const std::string text = RandomText(random, 400'000, 6);
    GramIndex index;
    for (std::size_t size = 0; size <= text.size(); size += 1000) {
        index.Extend(std::string_view(text).substr(0, size));
    }
    EXPECT_EQ(index.Contains(text, text.substr(0, 40)), true);
    EXPECT_EQ(index.Contains(text, text.substr(200'007, 32)), true);
    EXPECT_EQ(index.Contains(text, text.substr(text.size() - 32)), true);
    EXPECT_EQ(index.Contains(text, std::string(32, 'z')), false);
}

}  // namespace
}  // namespace velkarix
