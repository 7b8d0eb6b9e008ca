// Paths of any form, in every place that leads to a file: where it is taken for one that is there,
// and how it is shown.
#include <optional>
#include <ostream>

#include "process/ProcessColumns.h"
#include "startup/StartupColumns.h"
#include "tests/field/FieldPages.h"

namespace velkarix {
namespace {

constexpr const char* Class = "{0DD0C1A5-0002}";

struct PathCase {
    const char* name;
    std::string path;
    // What is shown as the file's name; the folder is what stands before it. Without a backslash
    // there is no folder.
    std::string fileName;
    std::string file;  // that lies on the disk; empty for none
    // Whether the file is found.
    bool isThere;
    // Of what path the startup list shows the facts, where that is another: it takes what it finds
    // between a drive and an extension.
    std::optional<std::string> started = {};
    // What is shown as the name of the file of a process, where the system cuts its path.
    std::optional<std::string> cutName = {};
};

void PrintTo(const PathCase& path, std::ostream* stream) {
    *stream << path.name;
}

// A path of that many bytes.
std::string Long(std::size_t size) {
    std::string path = "C:";
    while (path.size() + 60 < size) path.append("\\").append(50, 'd');
    path.append("\\").append(size - path.size() - 5, 'f').append(".exe");
    return path;
}

std::string LongName(std::size_t letters) {
    return std::string(letters, 'f').append(".exe");
}

std::vector<PathCase> AllPaths() {
    const std::string plain = "C:\\Odd\\odd.exe";
    return {
        {"Plain", plain, "odd.exe", plain, true},
        {"Of259Bytes", Long(259), LongName(47), Long(259), true},
        {"Of260Bytes", Long(260), LongName(48), "", false},
        {"Of1000Bytes", Long(1000), LongName(23), "", false, {}, "dd"},
        {"Of40000Bytes", Long(40000), LongName(8), "", false, {}, "dd"},
        {"TakenAsItStands", "\\\\?\\" + plain, "odd.exe", plain, true, plain},
        {"TakenAsItStandsAndGone", "\\\\?\\C:\\Odd\\gone.exe", "gone.exe", "", false},
        {"OfAShare", "\\\\server\\share\\odd.exe", "odd.exe", "\\\\server\\share\\odd.exe", true},
        {"OfAShareThatIsGone", "\\\\nobody\\share\\odd.exe", "odd.exe", "", false},
        {"OfNoShare", "\\\\server", "server", "", false},
        {"OfADrivesDevice", "\\\\.\\C:", "C:", "", false},
        {"OfAPhysicalDevice", "\\\\.\\PhysicalDrive0", "PhysicalDrive0", "", false},
        {"OfNothing", "C:\\Odd\\NUL", "NUL", "C:\\Odd\\other.exe", false},
        {"OfADeviceWithAnExtension", "C:\\Odd\\con.exe", "con.exe", "C:\\Odd\\other.exe", false},
        {"OfAPort", "C:\\Odd\\COM1.exe", "COM1.exe", "C:\\Odd\\other.exe", false},
        {"OfAPrinter", "C:\\lpt9.dll", "lpt9.dll", "", false},
        // The one over which the older systems break down.
        {"OfADeviceInADevice", "C:\\con\\con", "con", "", false},
        {"OfADeviceWithABlank", "C:\\Odd\\AUX .exe", "AUX .exe", "C:\\Odd\\other.exe", false},
        {"NamedAlmostLikeADevice", "C:\\Odd\\COM10.exe", "COM10.exe", "C:\\Odd\\COM10.exe", true},
        {"InAFolderNamedAlmostLikeADevice", "C:\\console\\a.exe", "a.exe", "C:\\console\\a.exe",
         true},
        {"WithADotBehind", plain + ".", "odd.exe.", plain, true, plain},
        {"WithDotsInIt", "C:\\Odd\\..\\Odd\\.\\odd.exe", "odd.exe", plain, true},
        {"WithSlashes", "C:/Odd/odd.exe", "C:/Odd/odd.exe", plain, true},
        {"OfAPattern", "C:\\Odd\\*.exe", "*.exe", plain, false},
        {"OfAStream", plain + ":stream", "odd.exe:stream", plain, false, plain},
        {"OfADriveThatIsGone", "Q:\\odd.exe", "odd.exe", "", false},
    };
}

class FieldPaths : public FieldPages, public testing::WithParamInterface<PathCase> {
  protected:
    FieldPaths() {
        if (!file.empty()) {
            Machine()
                .AddFile(file)
                .Content(std::string(2048, 'x'))
                .Version({{"CompanyName", "Odd"}});
        }
    }
    std::string FactsOf(const RowTexts& row, std::size_t size) {
        return row.at(size) + "|" + row.at(size + 2);
    }
    // What stands before the name.
    static std::string FolderIn(const std::string& whole, const std::string& fileName) {
        EXPECT_TRUE(whole.ends_with(fileName)) << whole;
        return whole.substr(0, whole.size() - fileName.size());
    }
    const std::string& path = GetParam().path;
    const std::string& file = GetParam().file;
    const bool isThere = GetParam().isThere;
    const std::string facts = isThere ? "2.0|Odd" : "|";
};

// The commands of the registry stay as they are; of a file that is there the row shows the path.
TEST_P(FieldPaths, OfAStartupItem) {
    Machine().SetValue(Hive::LocalMachine, LiveRun, "Odd", path);
    Enter(StartupRows);
    ASSERT_EQ(Rows(StartupRows).size(), 1u);
    const RowTexts row = Rows(StartupRows)[0];
    EXPECT_EQ(row[startupColumn::Command], path);
    const std::string shown = row[startupColumn::Folder] + row[startupColumn::File];
    const std::string started = GetParam().started.value_or(isThere ? path : "");
    EXPECT_EQ(shown, started);
    EXPECT_EQ(FactsOf(row, startupColumn::Facts.size), started.empty() ? "|" : "2.0|Odd");
    GoOffAndOnAndAway(StartupRows, {Hive::LocalMachine, LiveRun, HeldRun, "Odd", true}, "Odd");
}

TEST_P(FieldPaths, OfABrowserItem) {
    Machine().SetValue(Hive::ClassesRoot, std::string("CLSID\\") + Class + "\\InprocServer32", "",
                       path);
    Machine().AddKey(Hive::LocalMachine, std::string(live::BHOs) + "\\" + Class);
    const FieldList rows = BrowserRows(BHOs);
    Enter(rows);
    ASSERT_EQ(Rows(rows).size(), 1u);
    const RowTexts row = Rows(rows)[0];
    EXPECT_EQ(row[9], FolderIn(path, GetParam().fileName));
    EXPECT_EQ(row[3], GetParam().fileName);
    EXPECT_EQ(FactsOf(row, 4), facts);
    EXPECT_NE(ReportOf(rows).find("Size (Kb)         : " + row[4] + "\r\n"), std::string::npos);
    EXPECT_EQ(Messages(), RowTexts());
}

// The system tells a process' path in a buffer of 260 bytes.
TEST_P(FieldPaths, OfAProcess) {
    Machine().AddProcess(8, path);
    Enter(ProcessRows);
    ASSERT_EQ(Rows(ProcessRows).size(), 1u);
    const RowTexts row = Rows(ProcessRows)[0];
    const std::string shownName = GetParam().cutName.value_or(GetParam().fileName);
    EXPECT_EQ(row[processColumn::Folder], FolderIn(path.substr(0, 260), shownName));
    EXPECT_EQ(row[processColumn::Name], shownName);
    EXPECT_EQ(FactsOf(row, processColumn::Size), facts);
    EXPECT_EQ(Messages(), RowTexts());
}

// No call looks into a device, and none is asked for an icon.
TEST_P(FieldPaths, OfAnApplicationsIcon) {
    const std::string key = "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\App";
    for (const char* name : {"DisplayName", "UninstallString"}) {
        Machine().SetValue(Hive::LocalMachine, key, name, "App");
    }
    Machine().SetValue(Hive::LocalMachine, key, "DisplayIcon", path + ",0");
    if (!file.empty()) Machine().AddFile(file).Icon(0, {1, 1, {1}}, {1, 1, {2}});
    Enter(InstalledRows);
    ASSERT_EQ(Rows(InstalledRows).size(), 1u);
    EXPECT_EQ(View(InstalledRows).Row(0).Image() != DefaultImage, isThere);
    EXPECT_EQ(Messages(), RowTexts());
}

class FieldDevicePaths : public FieldPaths {};

TEST_P(FieldDevicePaths, AreNeverOpened) {
    Machine().SetValue(Hive::LocalMachine, LiveRun, "Odd", path);
    Machine().SetValue(Hive::ClassesRoot, std::string("CLSID\\") + Class + "\\InprocServer32", "",
                       path);
    Machine().AddKey(Hive::LocalMachine, std::string(live::BHOs) + "\\" + Class);
    Machine().SetValue(Hive::LocalMachine, std::string(live::Menus) + "\\Odd", "", path);
    const std::string button = std::string(live::Buttons) + "\\" + Class;
    for (const char* name : {"Exec", "Script", "Icon"}) {
        Machine().SetValue(Hive::LocalMachine, button, name, path);
    }
    const std::string key = "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\App";
    for (const char* name : {"DisplayName", "UninstallString", "DisplayIcon"}) {
        Machine().SetValue(Hive::LocalMachine, key, name, path);
    }
    for (const FieldList& list : {StartupRows, BrowserRows(BHOs), InstalledRows}) {
        Enter(list);
        View(list).UserSelect(&View(list).Row(0));
    }
    for (const Call& call : Machine().Journal().Calls()) {
        if (call.name.starts_with("Reg")) continue;
        EXPECT_EQ(call.arguments.find(path), std::string::npos) << call.name;
    }
}

std::vector<PathCase> AllDevices() {
    std::vector<PathCase> devices = AllPaths();
    std::erase_if(devices, [](const PathCase& each) {
        return !MemoryDisk::IsDevice(each.path) && each.path.find("con\\con") == std::string::npos;
    });
    return devices;
}

INSTANTIATE_TEST_SUITE_P(Each, FieldDevicePaths, testing::ValuesIn(AllDevices()),
                         [](const auto& test) { return std::string(test.param.name); });

INSTANTIATE_TEST_SUITE_P(Each, FieldPaths, testing::ValuesIn(AllPaths()),
                         [](const auto& test) { return std::string(test.param.name); });

}  // namespace
}  // namespace velkarix
