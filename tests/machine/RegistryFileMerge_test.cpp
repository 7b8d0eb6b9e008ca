#include "tests/machine/RegistryFileMerge.h"

#include <gtest/gtest.h>

namespace velkarix {
namespace {

constexpr Hive User = Hive::CurrentUser;

TEST(RegistryFileMerge, SetsKeysAndValuesOfAllForms) {
    MemoryHives hives;
    ASSERT_TRUE(MergeRegistryFile(hives,
                                  "REGEDIT4\r\n\r\n"
                                  "[HKEY_CURRENT_USER\\A\\b]c]\r\n"
                                  "@=\"de\\\"f\\\\\"\r\n"
                                  "\"a\\\\\\\"\"=dword:ff00000a\r\n"
                                  "\"bytes\"=hex:01,\\\r\n  ab\r\n"
                                  "\"late\"=hex:\\\r\n  07\r\n"
                                  "\"typed\"=hex(b):\r\n"
                                  "\r\n"
                                  "[HKEY_LOCAL_MACHINE\\Bare]\r\n\r\n"));
    EXPECT_EQ(hives.TextAt(User, "A\\b]c", ""), "de\"f\\");
    EXPECT_EQ(hives.ValueAt(User, "A\\b]c", "a\\\"")->data, (Bytes{0x0A, 0, 0, 0xFF}));
    EXPECT_EQ(hives.ValueAt(User, "A\\b]c", "bytes"), (MemoryValue{"bytes", 3, {1, 0xAB}}));
    EXPECT_EQ(hives.ValueAt(User, "A\\b]c", "late")->data, Bytes{7});
    EXPECT_EQ(hives.ValueAt(User, "A\\b]c", "typed"), (MemoryValue{"typed", 11, {}}));
    EXPECT_TRUE(hives.HasKey(Hive::LocalMachine, "Bare"));
}

TEST(RegistryFileMerge, TellsOfLinesThatItDoesNotKnow) {
    for (const std::string line :
         {"garbage", "\"a\"=", "\"a\"=\"b", "\"a\"=\"b\"c", "\"a\"=dword:1", "\"a\"=hex:1x",
          "\"a\"=hex:01,", "\"a\"=hex:0102", "\"a\"=hex(", "\"a\"=hex(g):01", "a=\"b\"",
          "[HKEY_NONE\\A]", "[HKEY_CURRENT_USER]", "\"a\"=hex:01,\\"}) {
        MemoryHives hives;
        EXPECT_FALSE(
            MergeRegistryFile(hives, "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\A]\r\n" + line + "\r\n"))
            << line;
    }
}

TEST(RegistryFileMerge, TakesNoOtherFile) {
    MemoryHives hives;
    EXPECT_FALSE(MergeRegistryFile(hives, ""));
    EXPECT_FALSE(MergeRegistryFile(hives, "REGEDIT5\r\n\r\n"));
    EXPECT_FALSE(MergeRegistryFile(hives, "REGEDIT4\r\n\r\n\"a\"=\"b\"\r\n"));
    EXPECT_FALSE(MergeRegistryFile(hives, "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\A]"));
}

}  // namespace
}  // namespace velkarix
