// What is disabled isn't started when the user logs on next, and what is enabled is.
#include <algorithm>

#include "Setup.h"
#include "StartupTest.h"
#include "Wait.h"
#include "tests/conformance/win32/SaveShortcut.h"

namespace velkarix::e2e {
namespace {

// Wine's logon runs what is in Run of both hives, RunOnce and RunServicesOnce of the machine, which
// it empties, and the shortcuts of the user. It leaves out RunOnceEx, the shortcuts for all users
// and the user's other keys; RunServices it runs when its server starts. That those move all the
// same, other tests prove; that Windows doesn't run them then isn't proved here.
const std::vector<StartupItem> Started = {
    MakeStartupItem("MachineRun", "Logon 1", "HKLM\\Run"),
    MakeStartupItem("UserRun", "Logon 2", "HKCU\\Run"),
    MakeStartupItem("MachineRunOnce", "Logon 3", "HKLM\\RunOnce"),
    MakeStartupItem("MachineRunServicesOnce", "Logon 4", "HKLM\\RunServicesOnce"),
    MakeStartupItem("UserFolder", "Logon 5.lnk", "Startup CU"),
};

class EverySystemStartupLogon : public StartupTest {
  protected:
    // Nothing but these items, and one that the program never touches.
    EverySystemStartupLogon() {
        EmptyAllPlaces();
        for (const StartupItem& item : Started) Put(item);
        Put(witness_);
    }
    // Each starts a program of its own, which writes down that it was started.
    std::string ProgramOf(const StartupItem& item) const {
        return install_.Path(std::string(item.title) + ".exe");
    }
    void Put(const StartupItem& item) {
        const std::string program = ProgramOf(item);
        ASSERT_TRUE(CopyFileA(SamplePath("SampleRecorder.exe").c_str(), program.c_str(), TRUE));
        if (item.hive != nullptr) {
            WriteItem(item, true, TextValue("\"" + program + "\" /logon"));
        } else {
            SaveShortcut(item.live + "\\" + item.name, {program, "/logon", ""});
        }
    }
    std::string LogOf(const StartupItem& item) const {
        return install_.Read(std::string(item.title) + ".log");
    }
    std::vector<const StartupItem*> All() const {
        std::vector<const StartupItem*> all = {&witness_};
        for (const StartupItem& item : Started) all.push_back(&item);
        return all;
    }
    // The titles of the items that have written down that they were started.
    std::vector<std::string> StartedTitles() const {
        std::vector<std::string> titles;
        for (const StartupItem* item : All()) {
            if (!LogOf(*item).empty()) titles.emplace_back(item->title);
        }
        std::ranges::sort(titles);
        return titles;
    }
    // Has the system log the user on, which starts these items and no others.
    void ExpectLogOnStarts(const std::vector<std::string>& titles) {
        for (const StartupItem* item : All()) {
            install_.Remove(std::string(item->title) + ".log");
        }
        EXPECT_EQ(Process("wineboot.exe").WaitForExit(), 0u);
        WaitUntil([&] { return StartedTitles() == titles; });
        // Everything has been started by now; this is for writing down what isn't to be.
        Sleep(ForWriting);
        EXPECT_EQ(StartedTitles(), titles);
        for (const StartupItem* item : All()) {
            const std::string log = LogOf(*item);
            if (log.empty()) continue;
            EXPECT_EQ(log.find("command: \"" + ProgramOf(*item) + "\" /logon\r\n"), 0u) << log;
        }
    }
    // Ticks all rows but the witness's, and gives the command.
    void MoveAll(bool enabled) {
        OpenStartup();
        for (const StartupItem& item : Started) TickItem(item, enabled);
        ASSERT_TRUE(Running().Press(enabled ? "cmdDisable" : "cmdEnable"));
        ASSERT_EQ(Running().Close(), 0u);
    }

  private:
    static constexpr DWORD ForWriting = 700;
    const StartupItem witness_ = MakeStartupItem("Witness", "Logon 9", "HKCU\\Run");
};

TEST_F(EverySystemStartupLogon, WhatIsDisabledIsNotStartedUntilItIsEnabledAgain) {
    MoveAll(true);
    const StartupState disabled = ReadState();
    ExpectLogOnStarts({"Witness"});
    EXPECT_EQ(ReadState(), disabled) << "the system takes away what it doesn't know";

    MoveAll(false);
    ExpectLogOnStarts({"MachineRun", "MachineRunOnce", "MachineRunServicesOnce", "UserFolder",
                       "UserRun", "Witness"});
    // What runs once is gone then, and isn't listed any more.
    OpenStartup();
    for (const StartupItem& item : Started) {
        const bool once = item.location.find("Once") != std::string::npos;
        EXPECT_NE(IsListed(item, true), once) << item;
    }
}

}  // namespace
}  // namespace velkarix::e2e
