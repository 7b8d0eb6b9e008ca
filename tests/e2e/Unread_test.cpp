// What the foot of the main window says of places that couldn't be read.
#include <windows.h>

#include "InstalledTest.h"
#include "Setup.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

const std::string EntriesKey = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall";

// A key whose name is as long as a name may be. Its path is too long for a call that takes it
// whole.
class LongestEntry {
  public:
    LongestEntry() {
        RegOpenKeyExA(HKEY_LOCAL_MACHINE, EntriesKey.c_str(), 0, KEY_ALL_ACCESS, &entries_);
        WriteValue(entries_, name_, "DisplayName", {REG_SZ, {'Z', 0}});
    }
    ~LongestEntry() {
        Remove();
        RegCloseKey(entries_);
    }
    LongestEntry(const LongestEntry&) = delete;
    LongestEntry& operator=(const LongestEntry&) = delete;
    void Remove() const { DeleteTree(entries_, name_); }

  private:
    const std::string name_ = std::string(255, 'z');
    HKEY entries_ = nullptr;
};

class EverySystemUnread : public InstalledTest {
  protected:
    Window Line() { return Running().Control("lblUnread"); }
    // What a click on the line says.
    std::string Places() {
        EXPECT_TRUE(Line().Click());
        const Window message = Running().Message();
        EXPECT_TRUE(message);
        const std::string text = MessageText(message);
        EXPECT_TRUE(Answer(message, IDOK));
        return text;
    }
};

TEST_F(EverySystemUnread, NothingIsSaidWhereEverythingCouldBeRead) {
    Start();
    for (const char* page : {"cmdIE", "cmdStartup", "cmdAddremove", "cmdOptions", "cmdUtilities"}) {
        ASSERT_TRUE(Running().Press(page));
        EXPECT_FALSE(Line().Visible()) << page << ": " << Places();
    }
}

TEST_F(EverySystemUnread, AKeyNameThatEndsTheListingIsTold) {
    // No buffer of the length that all systems allow holds a name of the greatest length.
    LongestEntry longest;
    OpenInstalled();
    ASSERT_TRUE(WaitUntil([this] { return Line().Visible(); }));
    EXPECT_EQ(Line().Text(), "1 place could not be read");
    EXPECT_NE(Places().find("HKEY_LOCAL_MACHINE\\" + EntriesKey + "\r\n"), std::string::npos);

    longest.Remove();
    ASSERT_TRUE(Running().Press("cmdRefresh"));
    EXPECT_FALSE(Line().Visible());
}

TEST_F(EverySystemUnread, AListThatAnotherProgramHoldsIsTold) {
    const std::string path = install_.Path("SusProcess.vkl");
    const HANDLE held =
        CreateFileA(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    Start();
    EXPECT_TRUE(Line().Visible());
    const std::string places = Places();
    CloseHandle(held);
    EXPECT_NE(places.find(path + "\r\n"), std::string::npos) << places;
}

}  // namespace
}  // namespace velkarix::e2e
