// The startup folders have other names on each system, and some systems have fewer of them.
#include <algorithm>
#include <filesystem>

#include "Setup.h"
#include "StartupTest.h"
#include "tests/conformance/win32/SaveShortcut.h"

namespace velkarix::e2e {
namespace {

constexpr const char* ShellFolders =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";

// Where a system keeps the shortcuts, without the drive; null where it has no such folder.
struct FolderNames {
    const char* ofAllUsers;
    const char* ofTheUser;
};

// As each system's setup makes them.
FolderNames NamesOn(const std::string& system) {
    // The Program Manager keeps groups in files of its own.
    if (system == "nt351") return {nullptr, nullptr};
    if (system == "win95") return {nullptr, "\\WINDOWS\\Start Menu\\Programs\\StartUp"};
    if (IsSystemOf95Family()) {
        return {"\\WINDOWS\\All Users\\Start Menu\\Programs\\StartUp",
                "\\WINDOWS\\Start Menu\\Programs\\StartUp"};
    }
    if (system == "nt40") {
        return {"\\WINNT\\Profiles\\All Users\\Start Menu\\Programs\\Startup",
                "\\WINNT\\Profiles\\Administrator\\Start Menu\\Programs\\Startup"};
    }
    return {"\\Documents and Settings\\All Users\\Start Menu\\Programs\\Startup",
            "\\Documents and Settings\\Administrator\\Start Menu\\Programs\\Startup"};
}

class EverySystemStartupFolders : public StartupTest {
  protected:
    EverySystemStartupFolders() {
        Name(HKEY_LOCAL_MACHINE, "Common Startup", names_.ofAllUsers);
        Name(HKEY_CURRENT_USER, "Startup", names_.ofTheUser);
    }
    ~EverySystemStartupFolders() override {
        EndProgram();
        RestoreTree(HKEY_LOCAL_MACHINE, ShellFolders, machine_);
        RestoreTree(HKEY_CURRENT_USER, ShellFolders, user_);
        std::error_code failure;
        std::filesystem::remove_all(Drive(), failure);
    }

    // A shortcut in the folder that has this place in the list.
    static StartupItem Put(const std::string& location) {
        StartupItem item = MakeStartupItem("", "Sample Bar.lnk", location);
        SaveShortcut(item.live + "\\" + item.name, {SamplePath("SampleIdle.exe"), "/bar", ""});
        return item;
    }
    static std::string FileOf(const StartupItem& item) { return item.live + "\\" + item.name; }
    static bool Exists(const std::string& path) {
        return GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES;
    }
    // The locations of the shortcuts that are listed as enabled.
    std::vector<std::string> ListedShortcuts() {
        std::vector<std::string> locations;
        for (const RowTexts& row : Items().Rows()) {
            if (row[2].starts_with("Startup ") && row[1] == "True") locations.push_back(row[2]);
        }
        std::ranges::sort(locations);
        return locations;
    }
    void ExpectMoves(const StartupItem& item) {
        TickItem(item, true);
        ASSERT_TRUE(Running().Press("cmdDisable"));
        EXPECT_TRUE(IsListed(item, false));
        EXPECT_FALSE(Exists(FileOf(item)));
        TickItem(item, false);
        ASSERT_TRUE(Running().Press("cmdEnable"));
        EXPECT_TRUE(IsListed(item, true));
        EXPECT_TRUE(Exists(FileOf(item)));
    }
    // Has the system name that folder, which comes into being; none when there is no name.
    static void Name(HKEY hive, const char* value, const char* folder) {
        DeleteValue(hive, ShellFolders, value);
        if (folder == nullptr) return;
        const std::string path = Drive() + folder;
        std::filesystem::create_directories(path);
        WriteValue(hive, ShellFolders, value, TextValue(path));
    }

    const FolderNames names_ = NamesOn(SystemUnderTest());

  private:
    static std::string Drive() { return ScratchFolder() + "\\Drive"; }

    const std::optional<RegistryTree> machine_ = ReadTree(HKEY_LOCAL_MACHINE, ShellFolders);
    const std::optional<RegistryTree> user_ = ReadTree(HKEY_CURRENT_USER, ShellFolders);
};

TEST_F(EverySystemStartupFolders, ShortcutsAreFoundWhereTheSystemKeepsThem) {
    std::vector<StartupItem> items;
    std::vector<std::string> locations;
    if (names_.ofTheUser != nullptr) locations.push_back("Startup CU");
    if (names_.ofAllUsers != nullptr) locations.push_back("Startup LM");
    for (const std::string& location : locations) items.push_back(Put(location));
    OpenStartup();
    EXPECT_EQ(ListedShortcuts(), locations);
    for (const StartupItem& item : items) {
        EXPECT_TRUE(IsListed(item, true)) << item.live;
        ExpectMoves(item);
    }
}

TEST_F(EverySystemStartupFolders, WhereTheSystemNamesNoneTheRestIsShownAndNothingGetsLost) {
    Name(HKEY_LOCAL_MACHINE, "Common Startup", nullptr);
    Name(HKEY_CURRENT_USER, "Startup", nullptr);
    OpenStartup();
    for (const StartupItem& item : StartupItems)
        EXPECT_EQ(IsListed(item, true), item.hive != nullptr);
    const StartupItem held = MakeStartupItem("", "Sample Dialler.lnk", "Startup LM");
    TickItem(held, false);
    ASSERT_TRUE(Running().Control("cmdEnable").Click());
    const Window message = Running().Message();
    ASSERT_TRUE(message);
    EXPECT_EQ(MessageText(message).find("Error Occurred Enable Startup: \r\n"), 0u)
        << MessageText(message);
    EXPECT_TRUE(Answer(message, IDOK));
    EXPECT_TRUE(ReadItem(held, false));
}

}  // namespace
}  // namespace velkarix::e2e
