#include "platform/VersionBlock.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace velkarix {
namespace {

// Builds a node of a version resource as a resource compiler does.
class BlockBuilder {
  public:
    explicit BlockBuilder(bool isWide) : isWide_(isWide) {}

    // `body` is the value (already in bytes) or the nodes below.
    Bytes Node(const std::u16string& name, std::size_t valueCount, int type, const Bytes& value,
               const std::vector<Bytes>& children = {}) const {
        Bytes node;
        Word(node, 0);
        Word(node, valueCount);
        if (isWide_) Word(node, static_cast<std::size_t>(type));
        Text(node, name);
        Align(node);
        node.insert(node.end(), value.begin(), value.end());
        for (const auto& child : children) {
            Align(node);
            node.insert(node.end(), child.begin(), child.end());
        }
        node[0] = static_cast<std::uint8_t>(node.size());
        node[1] = static_cast<std::uint8_t>(node.size() >> 8);
        return node;
    }

    Bytes String(const std::u16string& name, const std::u16string& text) const {
        Bytes value;
        Text(value, text);
        return Node(name, text.size() + 1, 1, value);
    }

    Bytes Program(const std::vector<Bytes>& strings) const {
        const auto table = Node(u"040904B0", 0, 1, {}, strings);
        const auto translation = Node(u"Translation", 4, 0, {0x09, 0x04, 0xB0, 0x04});
        return Node(u"VS_VERSION_INFO", 4, 0, {0xBD, 0x04, 0xEF, 0xFE},
                    {Node(u"StringFileInfo", 0, 1, {}, {table}),
                     Node(u"VarFileInfo", 0, 1, {}, {translation})});
    }

  private:
    static void Word(Bytes& out, std::size_t value) {
        out.push_back(static_cast<std::uint8_t>(value));
        out.push_back(static_cast<std::uint8_t>(value >> 8));
    }

    void Text(Bytes& out, const std::u16string& text) const {
        for (const char16_t character : text + u'\0') {
            if (isWide_) {
                Word(out, character);
            } else {
                out.push_back(static_cast<std::uint8_t>(character));
            }
        }
    }

    static void Align(Bytes& out) {
        while (out.size() % 4 != 0) out.push_back(0);
    }

    bool isWide_;
};

const BlockBuilder Wide(true);
const BlockBuilder Narrow(false);
const std::string CompanyPath = "\\StringFileInfo\\040904B0\\CompanyName";
const std::string Version = "\\StringFileInfo\\040904B0\\FileVersion";
const std::string TranslationPath = "\\VarFileInfo\\Translation";

Bytes Text(const std::string& text) {
    return Bytes(text.c_str(), text.c_str() + text.size() + 1);
}

Bytes Sample(const BlockBuilder& builder) {
    return builder.Program(
        {builder.String(u"CompanyName", u"Lathe Works"), builder.String(u"FileVersion", u"1.2")});
}

std::size_t Find(const Bytes& block, const std::u16string& text) {
    Bytes wanted;
    for (const char16_t c : text) {
        wanted.push_back(static_cast<std::uint8_t>(c));
        wanted.push_back(static_cast<std::uint8_t>(c >> 8));
    }
    const auto found = std::search(block.begin(), block.end(), wanted.begin(), wanted.end());
    return static_cast<std::size_t>(found - block.begin());
}

// Where the node named `name` starts in a 32-bit block.
std::size_t NodeStart(const Bytes& block, const std::u16string& name) {
    return Find(block, name) - 6;
}

class BothForms : public testing::TestWithParam<const BlockBuilder*> {};
INSTANTIATE_TEST_SUITE_P(VersionBlock, BothForms, testing::Values(&Wide, &Narrow));

TEST_P(BothForms, GivesTextsWithTheirNul) {
    const auto block = Sample(*GetParam());
    EXPECT_EQ(QueryVersionBlock(block, CompanyPath), Text("Lathe Works"));
    EXPECT_EQ(QueryVersionBlock(block, Version), Text("1.2"));
}

TEST_P(BothForms, GivesBinaryDataAsItStands) {
    const auto block = Sample(*GetParam());
    EXPECT_EQ(QueryVersionBlock(block, TranslationPath), (Bytes{0x09, 0x04, 0xB0, 0x04}));
    EXPECT_EQ(QueryVersionBlock(block, "\\"), (Bytes{0xBD, 0x04, 0xEF, 0xFE}));
    EXPECT_EQ(QueryVersionBlock(block, ""), (Bytes{0xBD, 0x04, 0xEF, 0xFE}));
}

TEST_P(BothForms, ComparesNamesWithoutCaseAndWhole) {
    const auto block = Sample(*GetParam());
    EXPECT_EQ(QueryVersionBlock(block, "\\STRINGFILEINFO\\040904b0\\companyname"),
              Text("Lathe Works"));
    EXPECT_EQ(QueryVersionBlock(block, "\\StringFileInfo\\040904B0\\Company"), std::nullopt);
    EXPECT_EQ(QueryVersionBlock(block, "\\StringFileInfo\\040904B0\\CompanyNames"), std::nullopt);
    EXPECT_EQ(QueryVersionBlock(block, "\\StringFileInfo\\040704B0\\CompanyName"), std::nullopt);
}

TEST_P(BothForms, IsSoundAsCompilersMakeIt) {
    EXPECT_TRUE(IsVersionBlockSound(Sample(*GetParam())));
}

TEST_P(BothForms, StaysSoundWithSpareBytesBehind) {
    auto block = Sample(*GetParam());
    block.resize(2 * block.size() + 4);
    EXPECT_TRUE(IsVersionBlockSound(block));
    EXPECT_EQ(QueryVersionBlock(block, Version), Text("1.2"));
}

TEST_P(BothForms, AnyPieceOfABlockIsReadWithoutLeavingIt) {
    const auto block = Sample(*GetParam());
    for (std::size_t size = 0; size < block.size(); ++size) {
        const Bytes piece(block.begin(), block.begin() + static_cast<std::ptrdiff_t>(size));
        EXPECT_FALSE(IsVersionBlockSound(piece)) << size;
        const auto company = QueryVersionBlock(piece, CompanyPath).value_or(Bytes{});
        EXPECT_LE(company.size(), Text("Lathe Works").size()) << size;
    }
}

TEST_P(BothForms, ABlockWithAnyByteChangedIsReadWithoutLeavingIt) {
    const auto block = Sample(*GetParam());
    for (std::size_t changed = 0; changed < block.size(); ++changed) {
        for (const int byte : {0x00, 0x01, 0x7F, 0xFF}) {
            auto broken = block;
            broken[changed] = static_cast<std::uint8_t>(byte);
            IsVersionBlockSound(broken);
            for (const auto& part : {CompanyPath, Version, TranslationPath}) {
                const auto found = QueryVersionBlock(broken, part).value_or(Bytes{});
                EXPECT_LE(found.size(), block.size()) << changed;
            }
        }
    }
}

TEST(VersionBlock, KeepsLatinCharactersAndMarksOthers) {
    const auto block = Wide.Program({Wide.String(u"CompanyName", u"Caf\u00E9 \u0416\u2019")});
    EXPECT_EQ(QueryVersionBlock(block, CompanyPath), Text("Caf\xE9 ??"));
}

TEST(VersionBlock, AnEmptyTextIsFoundAndEmpty) {
    const auto block = Wide.Program({Wide.Node(u"CompanyName", 0, 1, {})});
    EXPECT_EQ(QueryVersionBlock(block, CompanyPath), Bytes{});
    EXPECT_TRUE(IsVersionBlockSound(block));
}

TEST(VersionBlock, ATextCountedInBytesReachesPastItsNodeButNotPastTheBlock) {
    const Bytes value = {'A', 0, 'b', 0, 0, 0};
    auto block = Wide.Program({Wide.Node(u"CompanyName", 6, 1, value)});
    const auto inside = QueryVersionBlock(block, CompanyPath);
    ASSERT_TRUE(inside);
    EXPECT_EQ(inside->size(), 6U);
    EXPECT_EQ(Bytes(inside->begin(), inside->begin() + 3), Text("Ab"));
    EXPECT_TRUE(IsVersionBlockSound(block));

    block.resize(Find(block, u"Ab") + 8);
    EXPECT_EQ(QueryVersionBlock(block, CompanyPath)->size(), 4U);
    EXPECT_FALSE(IsVersionBlockSound(block));
}

TEST(VersionBlock, AValueLongerThanTheBlockIsCutThere) {
    auto block = Sample(Wide);
    const auto node = NodeStart(block, u"Translation");
    block[node + 2] = 0xFF;
    block[node + 3] = 0xFF;
    EXPECT_FALSE(IsVersionBlockSound(block));
    EXPECT_EQ(QueryVersionBlock(block, TranslationPath), (Bytes{0x09, 0x04, 0xB0, 0x04}));
}

TEST(VersionBlock, ABlockThatCouldBeTakenForTheOtherFormIsNotSound) {
    auto oddType = Sample(Wide);
    oddType[5] = 'V';
    EXPECT_FALSE(IsVersionBlockSound(oddType));
    EXPECT_EQ(QueryVersionBlock(oddType, Version), Text("1.2"));

    auto oddName = Sample(Narrow);
    oddName[4] = ' ';
    EXPECT_FALSE(IsVersionBlockSound(oddName));
    EXPECT_EQ(QueryVersionBlock(oddName, Version), Text("1.2"));
}

TEST(VersionBlock, ANodeOfATypeThatIsNotKnownIsNotSound) {
    for (const char16_t* name : {u"StringFileInfo", u"FileVersion", u"Translation"}) {
        auto block = Sample(Wide);
        block[NodeStart(block, name) + 4] = 2;
        EXPECT_FALSE(IsVersionBlockSound(block));
        EXPECT_TRUE(QueryVersionBlock(block, Version));
    }
}

TEST(VersionBlock, WhatRemainsBehindTheLastNodeMustBeZeros) {
    // Compilers that don't count a text's NUL leave it behind the value.
    auto block = Wide.Program({Wide.Node(u"CompanyName", 2, 1, {'A', 0, 'b', 0, 0, 0})});
    EXPECT_TRUE(IsVersionBlockSound(block));
    EXPECT_EQ(QueryVersionBlock(block, CompanyPath), (Bytes{'A', 'b'}));

    block[Find(block, u"Ab") + 4] = 0x40;
    EXPECT_FALSE(IsVersionBlockSound(block));
    EXPECT_EQ(QueryVersionBlock(block, CompanyPath), (Bytes{'A', 'b'}));
}

TEST(VersionBlock, ATextDoesNotReachIntoTheSpareBytesBehindTheResource) {
    auto block = Sample(Wide);
    block[NodeStart(block, u"FileVersion") + 2] = 200;
    const std::size_t start = Find(block, u"1.2");
    const std::size_t length = block.size() - start;
    block.resize(2 * block.size());
    EXPECT_FALSE(IsVersionBlockSound(block));
    EXPECT_EQ(QueryVersionBlock(block, Version)->size(), length / 2);
}

TEST(VersionBlock, ANodeLongerThanItsParentIsNotSoundButItsTextIsFound) {
    auto block = Sample(Wide);
    block[NodeStart(block, u"FileVersion") + 1] = 0x7F;
    EXPECT_FALSE(IsVersionBlockSound(block));
    EXPECT_EQ(QueryVersionBlock(block, Version), Text("1.2"));
}

TEST(VersionBlock, ANodeWithoutLengthEndsTheSearch) {
    auto block = Sample(Wide);
    block[NodeStart(block, u"CompanyName")] = 0;
    EXPECT_FALSE(IsVersionBlockSound(block));
    EXPECT_EQ(QueryVersionBlock(block, Version), std::nullopt);
    EXPECT_EQ(QueryVersionBlock(block, TranslationPath), (Bytes{0x09, 0x04, 0xB0, 0x04}));
}

TEST(VersionBlock, ANameWithoutEndIsNoNode) {
    Bytes block(64, 0x41);
    block[0] = 64;
    block[1] = 0;
    block[4] = 1;
    EXPECT_FALSE(IsVersionBlockSound(block));
    EXPECT_EQ(QueryVersionBlock(block, "\\"), std::nullopt);
}

TEST(VersionBlock, NodesNestedWithoutMeasureAreNotSound) {
    Bytes block;
    for (int level = 0; level < 100; ++level) block = Wide.Node(u"n", 0, 0, {}, {block});
    block = Wide.Node(u"VS_VERSION_INFO", 0, 0, {}, {block});
    EXPECT_FALSE(IsVersionBlockSound(block));
    EXPECT_TRUE(QueryVersionBlock(block, "\\n\\n\\n"));
}

}  // namespace
}  // namespace velkarix
