#include "installed/SlowInfoCache.h"

#include <gtest/gtest.h>

#include "tests/installed/CacheRecord.h"

namespace velkarix {
namespace {

TEST(SlowInfoCache, TellsThePathUpToItsNul) {
    Bytes record = CacheRecord(u"C:\\a.exe");
    record[46] = 'x';  // behind the NUL
    EXPECT_EQ(FileOfSlowInfoCache(record), u"C:\\a.exe");
}

TEST(SlowInfoCache, TellsCharactersOfAnyScript) {
    EXPECT_EQ(FileOfSlowInfoCache(CacheRecord(u"C:\\\u00FC\u0416\uFF01.exe")),
              u"C:\\\u00FC\u0416\uFF01.exe");
}

TEST(SlowInfoCache, NamesNoFileWhenTheFlagIsOff) {
    Bytes record = CacheRecord(u"C:\\a.exe");
    record[4] = 0;
    EXPECT_EQ(FileOfSlowInfoCache(record), std::nullopt);
    record[5] = record[6] = record[7] = 1;  // the first byte alone counts
    EXPECT_EQ(FileOfSlowInfoCache(record), std::nullopt);
}

TEST(SlowInfoCache, NamesAFileWithAnyOtherFlag) {
    Bytes record = CacheRecord(u"a");
    for (const int flag : {1, 2, 0x80, 0xFF}) {
        record[4] = static_cast<std::uint8_t>(flag);
        EXPECT_EQ(FileOfSlowInfoCache(record), u"a") << flag;
    }
}

TEST(SlowInfoCache, IsNoneOfAnotherSize) {
    for (const std::size_t size : {0, 1, 4, 5, 28, 29, 551, 553, 1104, 70000}) {
        Bytes record = CacheRecord(u"a");
        record.resize(size);
        EXPECT_EQ(FileOfSlowInfoCache(record), std::nullopt) << size;
    }
}

TEST(SlowInfoCache, MayNameAnEmptyPath) {
    EXPECT_EQ(FileOfSlowInfoCache(CacheRecord(u"")), u"");
}

TEST(SlowInfoCache, EndsAPathWithoutAnEndWithTheRecord) {
    const std::u16string longest(262, u'x');
    EXPECT_EQ(FileOfSlowInfoCache(CacheRecord(longest)), longest);
    EXPECT_EQ(FileOfSlowInfoCache(Bytes(552, 0xFF)), std::u16string(262, u'\uFFFF'));
}

TEST(SlowInfoCache, DoesNotTrustTheLengthInTheRecord) {
    for (const int length : {0, 1, 0x7F, 0xFF}) {
        Bytes record = CacheRecord(u"C:\\a.exe");
        for (std::size_t i = 0; i < 4; ++i) record[i] = static_cast<std::uint8_t>(length);
        EXPECT_EQ(FileOfSlowInfoCache(record), u"C:\\a.exe") << length;
    }
}

}  // namespace
}  // namespace velkarix
