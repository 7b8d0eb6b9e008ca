#include "registry/RegistryFileValue.h"

#include <gtest/gtest.h>

namespace velkarix {
namespace {

Bytes Text(const std::string& text) {
    Bytes data(text.begin(), text.end());
    data.push_back(0);
    return data;
}

std::string LineOf(std::uint32_t type, const Bytes& data) {
    return RegistryFileValue({"a", type, data});
}

TEST(RegistryFileValue, PutsTheNameBetweenQuotesWithItsSignsMarked) {
    EXPECT_EQ(RegistryFileValue({"", 1, Text("x")}), "@=\"x\"\r\n");
    EXPECT_EQ(RegistryFileValue({"@", 1, Text("x")}), "\"@\"=\"x\"\r\n");
    EXPECT_EQ(RegistryFileValue({"a\"b\\c", 1, Text("x")}), "\"a\\\"b\\\\c\"=\"x\"\r\n");
}

TEST(RegistryFileValue, WritesASimpleTextPlainly) {
    EXPECT_EQ(LineOf(1, Text("")), "\"a\"=\"\"\r\n");
    EXPECT_EQ(LineOf(1, Text("C:\\a \"b\"")), "\"a\"=\"C:\\\\a \\\"b\\\"\"\r\n");
    EXPECT_EQ(LineOf(1, Text("caf\xE9")), "\"a\"=\"caf\xE9\"\r\n");
}

TEST(RegistryFileValue, WritesATextThatIsMoreOrLessThanOneTextInBytes) {
    EXPECT_EQ(LineOf(1, {}), "\"a\"=hex(1):\r\n");
    EXPECT_EQ(LineOf(1, {'b'}), "\"a\"=hex(1):62\r\n");
    EXPECT_EQ(LineOf(1, {'b', 0, 'c', 0}), "\"a\"=hex(1):62,00,63,00\r\n");
    EXPECT_EQ(LineOf(1, {'b', 0, 0}), "\"a\"=hex(1):62,00,00\r\n");
    EXPECT_EQ(LineOf(1, Text("\r\n")), "\"a\"=hex(1):0d,0a,00\r\n");
    EXPECT_EQ(LineOf(1, Text("\t")), "\"a\"=hex(1):09,00\r\n");
}

TEST(RegistryFileValue, WritesATextInBytesWhereABackslashMayBeHalfACharacter) {
    EXPECT_EQ(LineOf(1, Text("\x95\\")), "\"a\"=hex(1):95,5c,00\r\n");
    EXPECT_EQ(LineOf(1, Text("\\\x95")), "\"a\"=\"\\\\\x95\"\r\n");
}

TEST(RegistryFileValue, WritesANumberOfFourBytesAsOne) {
    EXPECT_EQ(LineOf(4, {0x0A, 0, 0, 0xFF}), "\"a\"=dword:ff00000a\r\n");
    EXPECT_EQ(LineOf(4, {1, 2, 3}), "\"a\"=hex(4):01,02,03\r\n");
    EXPECT_EQ(LineOf(4, {1, 2, 3, 4, 5}), "\"a\"=hex(4):01,02,03,04,05\r\n");
}

TEST(RegistryFileValue, WritesEverythingElseInBytesByItsType) {
    EXPECT_EQ(LineOf(3, {0xAB, 0}), "\"a\"=hex:ab,00\r\n");
    EXPECT_EQ(LineOf(3, {}), "\"a\"=hex:\r\n");
    EXPECT_EQ(LineOf(0, {1}), "\"a\"=hex(0):01\r\n");
    EXPECT_EQ(LineOf(2, Text("%a%")), "\"a\"=hex(2):25,61,25,00\r\n");
    EXPECT_EQ(LineOf(7, {'b', 0, 0}), "\"a\"=hex(7):62,00,00\r\n");
    EXPECT_EQ(LineOf(11, {1}), "\"a\"=hex(b):01\r\n");
    EXPECT_EQ(LineOf(0x4242, {1}), "\"a\"=hex(4242):01\r\n");
    EXPECT_EQ(LineOf(0xFFFFFFFF, {1}), "\"a\"=hex(ffffffff):01\r\n");
}

TEST(RegistryFileValue, BreaksLongLinesBetweenBytes) {
    // 77 characters with the last comma, then the backslash.
    std::string first = "\"a\"=hex:";
    for (int i = 0; i < 23; ++i) first += "07,";
    std::string second = "  ";
    for (int i = 0; i < 25; ++i) second += "07,";
    EXPECT_EQ(LineOf(3, Bytes(49, 7)), first + "\\\r\n" + second + "\\\r\n  07\r\n");
    EXPECT_EQ(LineOf(3, Bytes(23, 7)), first.substr(0, first.size() - 1) + "\r\n");
}

TEST(RegistryFileValue, BreaksBeforeTheFirstByteWhereTheNameIsLong) {
    EXPECT_EQ(RegistryFileValue({std::string(80, 'n'), 3, {7}}),
              std::string("\"").append(80, 'n') + "\"=hex:\\\r\n  07\r\n");
}

TEST(IsWritableName, RefusesControlCharacters) {
    EXPECT_TRUE(IsWritableName(""));
    EXPECT_TRUE(IsWritableName("a b\\c\"]\x7F\xFF"));
    EXPECT_TRUE(IsWritableName("\xE4\\b"));
    for (const std::string name : {"a\nb", "a\r", "\t", "\x1F"}) {
        EXPECT_FALSE(IsWritableName(name));
        EXPECT_FALSE(IsWritableValueName(name));
    }
    EXPECT_FALSE(IsWritableName(std::string(1, '\0')));
}

TEST(IsWritableValueName, RefusesABackslashThatMayBeHalfACharacter) {
    EXPECT_FALSE(IsWritableValueName("\x95\\"));
    EXPECT_TRUE(IsWritableValueName("\\\x95"));
    EXPECT_TRUE(IsWritableValueName("\x7F\\"));
}

}  // namespace
}  // namespace velkarix
