// The system's own record of a program, in any state: whether the application shows the icon that
// it names.
#include <ostream>

#include "tests/field/FieldPages.h"
#include "tests/installed/CacheRecord.h"

namespace velkarix {
namespace {

constexpr const char* Tool = "C:\\Apps\\tool.exe";
const std::u16string WideTool = u"C:\\Apps\\tool.exe";

struct CacheCase {
    const char* name;
    std::uint32_t type;
    Bytes record;
    bool hasIcon;
};

void PrintTo(const CacheCase& cache, std::ostream* stream) {
    *stream << cache.name;
}

std::vector<CacheCase> AllCaches() {
    using namespace registryType;
    const Bytes whole = CacheRecord(WideTool);
    const auto with = [&](std::size_t at, std::uint8_t byte) {
        Bytes record = whole;
        record[at] = byte;
        return record;
    };
    const auto sized = [&](std::size_t size) {
        Bytes record = whole;
        record.resize(size);
        return record;
    };
    return {
        {"Whole", Binary, whole, true},
        {"OfNoType", None, whole, true},
        {"OfAnUnknownType", 0x17, whole, true},
        {"ThatSaysItNamesNoFile", Binary, with(4, 0), false},
        {"ThatSaysItNamesAFileByAnotherNumber", Binary, with(4, 0xFF), true},
        {"ThatTellsAnotherLength", Binary, with(0, 0xFF), true},
        {"OfNoBytes", Binary, {}, false},
        {"OfOneByte", Binary, {1}, false},
        {"OfAHeadAlone", Binary, sized(28), false},
        {"OfOneByteLess", Binary, sized(551), false},
        {"OfOneByteMore", Binary, sized(553), false},
        {"OfManyBytes", Binary, sized(70000), false},
        {"OfOnesAlone", Binary, Bytes(552, 0xFF), false},
        {"OfZerosAlone", Binary, Bytes(552, 0), false},
        {"WithAnEmptyPath", Binary, CacheRecord(u""), false},
        {"WithAPathWithoutAnEnd", Binary, CacheRecord(std::u16string(300, u'x')), false},
        {"WithAPathOfOtherCharacters", Binary, CacheRecord(u"C:\\\u0430.exe"), false},
        {"WithHalfACharacter", Binary, CacheRecord(u"C:\\\xD83D.exe"), false},
        {"WithAPathThatIsGone", Binary, CacheRecord(u"C:\\gone.exe"), false},
        {"WithAPathToADevice", Binary, CacheRecord(u"C:\\Apps\\NUL.exe"), false},
    };
}

class FieldCaches : public FieldPages, public testing::WithParamInterface<CacheCase> {};

TEST_P(FieldCaches, GiveTheIconOrNone) {
    Machine().AddFile(Tool).Icon(0, {1, 1, {1}}, {1, 1, {2}});
    const std::string key = "Software\\Microsoft\\Windows\\CurrentVersion\\";
    for (const char* name : {"DisplayName", "UninstallString"}) {
        Machine().SetValue(Hive::LocalMachine, key + "Uninstall\\App", name, "App");
    }
    Registry().SetRaw(Hive::LocalMachine, key + "App Management\\ARPCache\\App", "SlowInfoCache",
                      GetParam().type, GetParam().record);
    Enter(InstalledRows);
    ASSERT_EQ(Rows(InstalledRows), (std::vector<RowTexts>{{"App", "App"}}));
    EXPECT_EQ(View(InstalledRows).Row(0).Image() != DefaultImage, GetParam().hasIcon);
    EXPECT_EQ(Messages(), RowTexts());
}

INSTANTIATE_TEST_SUITE_P(Each, FieldCaches, testing::ValuesIn(AllCaches()),
                         [](const auto& test) { return std::string(test.param.name); });

}  // namespace
}  // namespace velkarix
