// Values of any type and any bytes, each in every place that shows or moves a value: what the
// place shows, and that the value goes off, on and away without a byte being lost.
#include <functional>
#include <ostream>

#include "tests/field/FieldPages.h"

namespace velkarix {
namespace {

constexpr const char* Item = "{F1E1D000-VA1E}";
constexpr const char* File = "C:\\Some Tools\\item.dll";
constexpr Hive AllUsers = Hive::LocalMachine;
constexpr Hive User = Hive::CurrentUser;

struct ValueCase {
    std::string name;
    std::uint32_t type;
    std::string data;
    std::string command;  // as the startup list shows it
    std::string text;     // as all others read it
};

void PrintTo(const ValueCase& value, std::ostream* stream) {
    *stream << value.name;
}

std::vector<ValueCase> AllValues() {
    using namespace registryType;
    using namespace std::string_literals;
    const std::string path = File;
    const std::string ended = path + '\0';
    const std::string cut = path.substr(0, path.size() - 1);
    const std::string many(5000, 'x');
    std::vector<ValueCase> values = {
        {"Text", Sz, ended, path, path},
        {"EmptyText", Sz, "\0"s, "", ""},
        {"TextOfNoBytes", Sz, "", "", ""},
        {"TextBehindItsEnd", Sz, ended + "behind\0"s, path + "\0behind"s, path},
        {"ExpandingText", ExpandSz, "%ProgramFiles%\\a.dll\0"s, "%ProgramFiles%\\a.dll",
         "%ProgramFiles%\\a.dll"},
        {"EmptyExpandingText", ExpandSz, "\0"s, "", ""},
        // The last byte is taken for the end that isn't there.
        {"TextOfAnOddLengthWithoutAnEnd", Sz, "a.e"s, "a.", "a.e"},
        {"TextWithoutAnEnd", Sz, path, cut, path},
        {"ExpandingTextWithoutAnEnd", ExpandSz, path, cut, path},
        {"TextWithoutAnEndThatIsTheLongestValue", Sz, many, many.substr(1), many},
        {"TextWithoutAnEndThatJustFills", Sz, many.substr(0, 4096), many.substr(0, 4095),
         many.substr(0, 4096)},
        {"TextOfOneByteWithoutAnEnd", Sz, "a", "", "a"},
        {"SeveralTexts", MultiSz, ended + "second\0\0"s, path + "\0second"s, path},
        {"SeveralTextsWithoutAnEnd", MultiSz, ended + "second"s, path + "\0seco"s, path},
        {"NoTextsAtAll", MultiSz, "\0\0"s, "", ""},
        {"SeveralTextsOfNoBytes", MultiSz, "", "", ""},
        {"Number", Dword, "\2\0\0\0"s, "", "\2"},
        {"ShortNumber", Dword, "\2"s, "", "\2"},
        {"LongNumber", Qword, "abcdefgh"s, "", "abcdefgh"},
        {"LongNumberThatIsShort", Qword, "abc"s, "", "abc"},
        {"Bytes", Binary, ended, "", path},
        {"NoBytes", Binary, "", "", ""},
        {"OneByte", Binary, "\7"s, "", "\7"},
        {"NoType", None, ended, "", path},
        {"NoTypeAndNoBytes", None, "", "", ""},
        {"Resources", 8, ended, "", path},
        {"ANumberForAType", 0xFFFFFFFF, ended, "", path},
    };
    for (std::uint32_t type = 0x12; type <= 0x19; ++type) {
        values.push_back({"UnknownType0x1" + std::to_string(type - 0x10), type, ended, "", path});
    }
    return values;
}

class FieldValues : public FieldPages, public testing::WithParamInterface<ValueCase> {
  protected:
    FieldValues() {
        Machine().AddFile(File).Content("code").Version({{"CompanyName", "Of the item"}});
    }
    void Put(Hive hive, const std::string& key, const std::string& name) {
        const ValueCase& value = GetParam();
        Registry().SetRaw(hive, key, name, value.type, Bytes(value.data.begin(), value.data.end()));
    }
    void RegisterClass(const std::string& clsid) {
        Machine().SetValue(Hive::ClassesRoot, "CLSID\\" + clsid + "\\InprocServer32", "", File);
    }
    const std::string& command = GetParam().command;
    const std::string& text = GetParam().text;
};

TEST_P(FieldValues, OfARunKey) {
    for (const Hive hive : {AllUsers, User}) {
        Put(hive, LiveRun, "Odd");
        Enter(StartupRows);
        ASSERT_EQ(Rows(StartupRows).size(), 1u);
        const RowTexts row = Rows(StartupRows)[0];
        EXPECT_EQ(row[0], "Odd");
        EXPECT_EQ(row[startupColumn::Command], command);
        const std::string report = ReportOf(StartupRows);
        EXPECT_NE(report.find("Startup Item      : Odd\r\n"), std::string::npos);
        EXPECT_NE(report.find("Command           : " + command + "\r\n"), std::string::npos);
        GoOffAndOnAndAway(StartupRows, {hive, LiveRun, HeldRun, "Odd", true}, "Odd");
        program.desktop.messages.clear();
    }
}

TEST_P(FieldValues, WithoutANameInARunKey) {
    Put(AllUsers, LiveRun, "");
    Enter(StartupRows);
    ASSERT_EQ(Rows(StartupRows).size(), 1u);
    EXPECT_EQ(Rows(StartupRows)[0][startupColumn::Command], command);
    GoOffAndOnAndAway(StartupRows, {AllUsers, LiveRun, HeldRun, "", true}, "");
}

// The row is of the class that names the value; what the value holds shows nowhere.
TEST_P(FieldValues, OfToolbarsAndSearchHooks) {
    RegisterClass(Item);
    for (const ListCase* list : {&Toolbars, &Hooks}) {
        for (const PlaceCase& place : list->places) {
            const FieldList rows = BrowserRows(*list);
            Put(place.hive, place.live, Item);
            Enter(rows);
            ASSERT_EQ(Rows(rows).size(), 1u);
            EXPECT_EQ(Rows(rows)[0][0], Item);
            EXPECT_EQ(Rows(rows)[0].back(), "C:\\Some Tools\\");
            EXPECT_NE(ReportOf(rows).find("Company Name      : Of the item\r\n"),
                      std::string::npos);
            GoOffAndOnAndAway(rows, {place.hive, place.live, place.held, Item, true, place.bytes},
                              Item);
            program.desktop.messages.clear();
        }
    }
}

TEST_P(FieldValues, OfAContextMenu) {
    const FieldList rows = BrowserRows(Menus);
    Put(AllUsers, std::string(live::Menus) + "\\Odd", "");
    Enter(rows);
    ASSERT_EQ(Rows(rows).size(), 1u);
    EXPECT_EQ(Rows(rows)[0], (RowTexts{"Odd", "True", "All Users", text}));
    EXPECT_NE(ReportOf(rows).find("Path         : " + text + "\r\n"), std::string::npos);
    GoOffAndOnAndAway(rows, {AllUsers, live::Menus, held::Menus, "Odd", false}, "Odd");
}

TEST_P(FieldValues, OfAClassPath) {
    const FieldList rows = BrowserRows(BHOs);
    Put(Hive::ClassesRoot, std::string("CLSID\\") + Item + "\\InprocServer32", "");
    Machine().system.SetVariable("ProgramFiles", "C:\\Program Files");
    std::string path = text;
    if (path.starts_with('%')) path.replace(0, 14, "C:\\Program Files");
    Put(AllUsers, std::string(live::BHOs) + "\\" + Item, "");
    Enter(rows);
    ASSERT_EQ(Rows(rows).size(), 1u);
    const RowTexts row = Rows(rows)[0];
    EXPECT_EQ(row.at(9) + row.at(3), path);
    EXPECT_EQ(row.at(6), path == File ? "Of the item" : "");
    GoOffAndOnAndAway(rows, {AllUsers, live::BHOs, held::BHOs, Item, false}, Item);
}

// A key that names no class is no protocol.
TEST_P(FieldValues, OfAProtocolsClass) {
    const FieldList rows = BrowserRows(Protocols);
    Put(Hive::ClassesRoot, std::string(live::Handlers) + "\\odd", "CLSID");
    Enter(rows);
    ASSERT_EQ(Rows(rows).size(), text.empty() ? 0u : 1u);
    if (text.empty()) return;
    EXPECT_EQ(Rows(rows)[0][1], text);
    GoOffAndOnAndAway(rows, {Hive::ClassesRoot, live::Handlers, held::Handlers, "odd", false},
                      "odd");
}

// A button that names no file is none.
TEST_P(FieldValues, OfAButtonsScript) {
    const FieldList rows = BrowserRows(Buttons);
    const std::string key = std::string(live::Buttons) + "\\" + Item;
    Put(User, key, "Script");
    Put(User, key, "ButtonText");
    Enter(rows);
    ASSERT_EQ(Rows(rows).size(), text.empty() ? 0u : 1u);
    if (text.empty()) return;
    EXPECT_EQ(Rows(rows)[0][3], text);
    GoOffAndOnAndAway(rows, {User, live::Buttons, held::Buttons, Item, false}, Item);
}

// Up to four bytes of any type are a number; zone 0, and what isn't one, is no mapping.
TEST_P(FieldValues, OfADomainsZone) {
    const FieldList rows = BrowserRows(Domains);
    Put(User, std::string(live::Domains) + "\\odd.example", "*");
    std::uint32_t zone = 0;
    const std::string& data = GetParam().data;
    for (std::size_t i = data.size(); i > 0; --i) {
        zone = zone << 8 | static_cast<unsigned char>(data[i - 1]);
    }
    const bool isMapped = data.size() <= 4 && zone != 0;
    Enter(rows);
    ASSERT_EQ(Rows(rows).size(), isMapped ? 1u : 0u);
    if (!isMapped) return;
    const std::string status = zone == 2 ? "Trusted" : "Unknown: " + std::to_string(zone);
    EXPECT_EQ(Rows(rows)[0], (RowTexts{"*.odd.example", "True", status}));
    GoOffAndOnAndAway(rows, {User, live::Domains, held::Domains, "odd.example", false},
                      "*.odd.example");
}

// An entry without a name or a command is no application.
TEST_P(FieldValues, OfAnInstalledApplication) {
    const std::string holder = "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall";
    Put(AllUsers, holder + "\\Odd", "DisplayName");
    Put(AllUsers, holder + "\\Odd", "UninstallString");
    Put(AllUsers, holder + "\\Odd", "DisplayIcon");
    Enter(InstalledRows);
    ASSERT_EQ(Rows(InstalledRows).size(), text.empty() ? 0u : 1u);
    if (text.empty()) return;
    EXPECT_EQ(Rows(InstalledRows)[0], (RowTexts{text, text}));
    EXPECT_NE(ReportOf(InstalledRows).find("Program Name : " + text + "\r\n"), std::string::npos);
    GoOffAndOnAndAway(InstalledRows, {AllUsers, holder, "", "Odd", false}, text);
}

INSTANTIATE_TEST_SUITE_P(Each, FieldValues, testing::ValuesIn(AllValues()),
                         [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace velkarix
