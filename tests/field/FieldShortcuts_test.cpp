// Files in a startup folder that call themselves shortcuts: which of them make a row, and that the
// others stay where they are.
#include <cstdint>
#include <ostream>

#include "startup/StartupColumns.h"
#include "tests/field/FieldPages.h"
#include "tests/machine/ShortcutFile.h"

namespace velkarix {
namespace {

struct ShortcutCase {
    const char* name;
    Bytes file;
    bool isListed;
};

void PrintTo(const ShortcutCase& shortcut, std::ostream* stream) {
    *stream << shortcut.name;
}

// Where the numbers of the file stand that tests falsify.
constexpr std::size_t Flags = 20;
constexpr std::size_t Location = 0x4C;
constexpr std::size_t PathInLocation = Location + 16;
constexpr std::uint32_t HasItemList = 1;

const Shortcut Target = {"C:\\Odd\\odd.exe", "/x", "C:\\Odd\\odd.exe,1"};

Bytes With(std::size_t at, std::uint32_t number, int size = 4) {
    Bytes file = MakeShortcutFile(Target);
    for (int i = 0; i < size; ++i) {
        file[at + static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(number >> 8 * i);
    }
    return file;
}

Bytes FirstBytes(std::size_t count) {
    Bytes file = MakeShortcutFile(Target);
    file.resize(count);
    return file;
}

std::vector<ShortcutCase> AllShortcuts() {
    const Bytes whole = MakeShortcutFile(Target);
    Bytes large = whole;
    large.resize(2 * 1024 * 1024);
    // The arguments' count stands behind the location.
    const std::size_t arguments = Location + whole[Location] + whole[Location + 1] * 256u;
    const std::string text = "[InternetShortcut]\r\nURL=http://example.com/\r\n";
    return {
        {"Whole", whole, true},
        {"OfNoBytes", {}, false},
        {"OfOneByte", {0x4C}, false},
        {"OfAHeaderAlone", FirstBytes(0x4C), false},
        {"OfHalfAHeader", FirstBytes(0x20), false},
        {"CutInItsLocation", FirstBytes(Location + 30), false},
        {"CutInItsArguments", FirstBytes(arguments + 3), false},
        {"OfAnotherClass", With(4, 0), false},
        {"WithAHeaderOfAnotherSize", With(0, 0x4D), false},
        {"WithAListOfItemsThatIsNotThere", With(Flags, whole[Flags] | HasItemList), false},
        {"WithALocationOfNoLength", With(Location, 0), false},
        {"WithALocationPastTheEnd", With(Location, 0xFFFF), false},
        {"WithALocationPastAllMemory", With(Location, 0xFFFFFFFF), false},
        {"WithAPathPastTheLocation", With(PathInLocation, 0x7FFFFFFF), false},
        {"WithArgumentsPastTheEnd", With(arguments, 0xFFFF, 2), false},
        {"ThatIsAText", Bytes(text.begin(), text.end()), false},
        {"ThatIsLargerThanAny", large, false},
    };
}

class FieldShortcuts : public FieldPages, public testing::WithParamInterface<ShortcutCase> {
  protected:
    FieldShortcuts() {
        Machine().AddFile(Target.targetPath).Content("code").Version({{"CompanyName", "Odd"}});
        Machine().AddFile("C:\\Other\\other.exe");
        PutShortcut(Machine(), LiveCU, "other.lnk", "C:\\Other\\other.exe");
    }
    Bytes ContentOf(const std::string& path) {
        const auto file = Machine().disk.Find(path);
        return file ? file->content : Bytes{'?'};
    }
};

TEST_P(FieldShortcuts, AreListedWhereTheyAreWhole) {
    for (const char* folder : {LiveCU, HeldCU}) {
        Machine().AddFile(std::string(folder) + "\\odd.lnk").Content(GetParam().file);
    }
    Enter(StartupRows);
    std::size_t listed = 0;
    for (const RowTexts& row : Rows(StartupRows)) {
        if (row[0] != "odd.lnk") continue;
        ++listed;
        EXPECT_EQ(row[startupColumn::Command], "\"C:\\Odd\\odd.exe\" /x");
        EXPECT_EQ(row[startupColumn::Facts.company], "Odd");
    }
    EXPECT_EQ(listed, GetParam().isListed ? 2u : 0u);
    // None shows the facts of the file behind another.
    EXPECT_EQ(Rows(StartupRows).size(), listed + 1);
    const bool reported =
        ReportOf(StartupRows).find("Startup Item      : odd.lnk") != std::string::npos;
    EXPECT_EQ(reported, GetParam().isListed);
    EXPECT_EQ(Messages(), RowTexts());
}

// The commands on all rows leave a file that makes no row alone; one that makes one goes off, on
// and away with all its bytes.
TEST_P(FieldShortcuts, StayWholeWhateverIsDone) {
    const std::string live = std::string(LiveCU) + "\\odd.lnk";
    const std::string held = std::string(HeldCU) + "\\odd.lnk";
    Machine().AddFile(live).Content(GetParam().file);
    const Bytes file = GetParam().file;
    Enter(StartupRows);
    const auto tickAll = [&] {
        for (std::size_t i = 0; i < View(StartupRows).RowCount(); ++i) {
            View(StartupRows).UserCheck(View(StartupRows).Row(i), true);
        }
    };
    tickAll();
    Click(StartupRows, "cmdDisable");
    EXPECT_EQ(ContentOf(GetParam().isListed ? held : live), file);
    EXPECT_EQ(ContentOf(GetParam().isListed ? live : held), Bytes{'?'});
    tickAll();
    Click(StartupRows, "cmdEnable");
    EXPECT_EQ(ContentOf(live), file);
    EXPECT_EQ(ContentOf(held), Bytes{'?'});
    if (!GetParam().isListed) return;
    View(StartupRows).UserSelect(RowOf(StartupRows, "odd.lnk"));
    program.desktop.answers = {MessageAnswer::Yes};
    Click(StartupRows, "cmdDelete");
    EXPECT_EQ(ContentOf(live), Bytes{'?'});
    EXPECT_EQ(ContentOf(std::string(KeptStem) + "odd.lnk"), file);
}

INSTANTIATE_TEST_SUITE_P(Each, FieldShortcuts, testing::ValuesIn(AllShortcuts()),
                         [](const auto& test) { return std::string(test.param.name); });

}  // namespace
}  // namespace velkarix
