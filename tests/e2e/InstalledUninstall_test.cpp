// Starting an application's uninstaller: by button, menu and double click, with its command as it
// is.
#include <algorithm>

#include "Input.h"
#include "InstalledTest.h"
#include "MenuWindow.h"
#include "Setup.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

constexpr const char* Name = "Sample Chat";

class InstalledUninstall : public InstalledTest {
  protected:
    // How the stand-in was started, without the folder that it was started in.
    static std::string Command() {
        const std::string log = Uninstalled();
        return log.substr(0, log.find("\r\nfolder: "));
    }
    static std::string Expected(const std::string& name) {
        const auto& all = InstalledApplications();
        return "command: " + std::ranges::find(all, name, &InstalledApplication::name)->command;
    }
    void DoubleClick(const std::string& name) {
        SelectApplication(name);
        DoubleClickAt(Inside(Applications().LabelArea(*Applications().Selected())));
    }
};

class EverySystemInstalledUninstall : public InstalledUninstall {};

TEST_F(EverySystemInstalledUninstall, TheButtonStartsTheUninstallerOfTheSelectedApplication) {
    OpenInstalled();
    SelectApplication(Name);
    ASSERT_TRUE(Running().Press("cmdUninstall"));
    EXPECT_EQ(Command(), Expected(Name));
    EXPECT_EQ(ReadEntries(), EntriesBefore());
    EXPECT_TRUE(Applications().Find(Name)) << "the list is only read again when the user says so";
}

TEST_F(InstalledUninstall, ADoubleClickOnAnIconStartsIt) {
    OpenInstalled();
    DoubleClick("Sample Recorder 2.1");
    EXPECT_EQ(Command(), Expected("Sample Recorder 2.1"));
}

TEST_F(InstalledUninstall, ADoubleClickOnARowWithDetailsStartsIt) {
    OpenInstalled();
    ChooseView(true);
    DoubleClick("Sample Suite");
    EXPECT_EQ(Command(), Expected("Sample Suite"));
}

TEST_F(InstalledUninstall, ThePopupsFirstEntryStartsIt) {
    OpenInstalled();
    SelectApplication(Name);
    ClickAt(Inside(Applications().LabelArea(*Applications().Selected())), Mouse::Right);
    const Window popup = WaitForPopup(Running().Id());
    ASSERT_TRUE(popup);
    EXPECT_EQ(EntryCaptions(popup),
              (std::vector<std::string>{"&Uninstall", "&Delete", "-", "&Generate Report", "-",
                                        "&Refresh"}));
    ASSERT_TRUE(ChooseEntry(popup, "&Uninstall"));
    EXPECT_EQ(Command(), Expected(Name));
}

TEST_F(InstalledUninstall, TheMenuKeyOpensThePopup) {
    OpenInstalled();
    SelectApplication(Name);
    PressKey(VK_APPS);
    const Window popup = WaitForPopup(Running().Id());
    ASSERT_TRUE(popup);
    EXPECT_TRUE(ClosePopup(popup));
}

TEST_F(InstalledUninstall, AnUninstallerThatIsGoneIsNoFault) {
    OpenInstalled();
    SelectApplication("Sample Gone");
    ASSERT_TRUE(Running().Press("cmdUninstall"));
    EXPECT_TRUE(Running().Main().Enabled()) << "a message is in the way";
    SelectApplication(Name);
    ASSERT_TRUE(Running().Press("cmdUninstall"));
    EXPECT_EQ(Command(), Expected(Name));
}

TEST_F(InstalledUninstall, WithoutASelectedRowNothingIsStarted) {
    OpenInstalled();
    ChooseView(true);
    ASSERT_TRUE(Running().Press("cmdUninstall"));
    const RECT area = Window(Applications()).Area();
    DoubleClickAt({area.right - 40, area.bottom - 40});
    // What had been started would have been written down before this one.
    SelectApplication(Name);
    ASSERT_TRUE(Running().Press("cmdUninstall"));
    const std::string log = Uninstalled();
    EXPECT_EQ(log.find("command: "), log.rfind("command: ")) << log;
}

}  // namespace
}  // namespace velkarix::e2e
