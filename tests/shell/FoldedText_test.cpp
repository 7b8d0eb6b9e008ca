#include "shell/FoldedText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace velkarix {
namespace {

// Hands `content` over in pieces of at most `piece` bytes.
void Fold(FoldedText& folded, std::string_view content, std::size_t piece) {
    while (!content.empty()) {
        const std::span<std::uint8_t> room = folded.Room(std::min(piece, content.size()));
        ASSERT_FALSE(room.empty());
        std::copy_n(content.begin(), room.size(), room.begin());
        folded.Fold(room.size());
        content.remove_prefix(room.size());
    }
}

// The same, byte by byte.
std::string FoldPlainly(const std::string& content) {
    std::string text;
    bool atLineStart = true;
    for (std::size_t i = 0; i < content.size(); ++i) {
        if (content[i] == '\n' && i > 0 && content[i - 1] == '\r') continue;
        if (atLineStart) text += ' ';
        atLineStart = content[i] == '\r' || content[i] == '\n';
        if (!atLineStart) text += content[i];
    }
    return text;
}

TEST(FoldedTextTest, FoldsTheSameInPiecesOfAnySize) {
    std::mt19937 random(7);
    for (int round = 0; round < 2000; ++round) {
        std::string content(random() % 200, ' ');
        const auto plain = 1 + random() % 60;  // of so many bytes one is a control byte
        for (char& c : content) {
            c = random() % plain == 0 ? "\r\n\0\t\x0f"[random() % 5]
                                      : static_cast<char>(0x10 + random() % 0xF0);
        }
        FoldedText folded;
        if (round % 3 == 0) {
            ASSERT_TRUE(folded.Reserve(content.size()));
        }
        Fold(folded, content, 1 + random() % 100);
        ASSERT_EQ(folded.Text(), FoldPlainly(content));
    }
}

TEST(FoldedTextTest, NothingStaysNothing) {
    FoldedText folded;
    folded.EndFile();
    EXPECT_EQ(folded.Text(), "");
    EXPECT_EQ(folded.WholeLines(), "");
}

TEST(FoldedTextTest, ALineIsWholeOnceItsEndIsMet) {
    FoldedText folded;
    Fold(folded, "one\rtw", 100);
    EXPECT_EQ(folded.Text(), " one tw");
    EXPECT_EQ(folded.WholeLines(), " one");
    Fold(folded, "o\r", 100);
    EXPECT_EQ(folded.WholeLines(), " one two");
}

TEST(FoldedTextTest, TheEndOfTheFileEndsTheLastLine) {
    FoldedText folded;
    Fold(folded, "one\r\ntwo", 100);
    folded.EndFile();
    EXPECT_EQ(folded.WholeLines(), " one two");
    Fold(folded, "\nthree", 100);
    EXPECT_EQ(folded.Text(), " one two  three");
}

TEST(FoldedTextTest, ALineFeedAtTheStartOfAFileIsALineAlsoBehindACarriageReturn) {
    FoldedText folded;
    Fold(folded, "one\r", 100);
    folded.EndFile();
    Fold(folded, "\ntwo", 100);
    EXPECT_EQ(folded.Text(), " one  two");
}

TEST(FoldedTextTest, DropsALineThatHasNoEnd) {
    FoldedText folded;
    Fold(folded, "one\r\n", 100);
    Fold(folded, "two", 100);
    folded.DropUnfinishedLine();
    EXPECT_EQ(folded.Text(), " one");
    Fold(folded, "three", 100);
    EXPECT_EQ(folded.Text(), " one three");
}

TEST(FoldedTextTest, DropsNothingOfALineThatHasItsEnd) {
    FoldedText folded;
    Fold(folded, "one\r\n", 100);
    folded.DropUnfinishedLine();
    EXPECT_EQ(folded.Text(), " one");
}

TEST(FoldedTextTest, MoreThanThereIsMemoryForIsRefused) {
    FoldedText folded;
    Fold(folded, "one", 100);
    EXPECT_FALSE(folded.Reserve(SIZE_MAX));
    EXPECT_FALSE(folded.Reserve(SIZE_MAX - 4));
    EXPECT_EQ(folded.Text(), " one");
}

}  // namespace
}  // namespace velkarix
