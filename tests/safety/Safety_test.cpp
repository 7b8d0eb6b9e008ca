// What the program doesn't do: it writes nowhere, starts nothing and ends nothing but what the
// tables of SafetyRules name, whatever the user commands.
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <iterator>
#include <map>
#include <set>

#include "tests/safety/EveryCommand.h"
#include "tests/safety/SafetyMachine.h"
#include "tests/safety/SafetyRules.h"

namespace velkarix {
namespace {

using Texts = std::vector<std::string>;

TEST(Safety, EveryCommandChangesStartsAndEndsNothingButWhatItIsFor) {
    SafetyRules rules;
    std::set<std::string> complaints;
    std::size_t count = 0;
    const auto listen = [&](const GivenCommand& command) {
        for (const std::string& each : rules.Complaints(command)) complaints.insert(each);
    };
    const std::pair<EveryCommand::Prepare, MessageAnswer> occasions[] = {
        {PutSafetyMachine, MessageAnswer::Yes},
        {PutSafetyMachine, MessageAnswer::No},
        {PutOlderSafetyMachine, MessageAnswer::Yes},
    };
    std::map<std::string, std::size_t> neverSeen;
    for (const auto& [prepare, answer] : occasions) {
        EveryCommand all(prepare, answer, SafetyReport, listen);
        all.Give();
        for (const std::string& name : all.NeverSeen()) ++neverSeen[name];
        count += all.Count();
    }
    // Some show themselves on some machines only.
    std::erase_if(neverSeen, [&](const auto& each) { return each.second < std::size(occasions); });
    EXPECT_EQ(neverSeen, (std::map<std::string, std::size_t>()));
    EXPECT_EQ(complaints, std::set<std::string>());
    EXPECT_EQ(rules.UnusedRows(), Texts());
    std::printf("%zu commands\n", count);
}

TEST(Safety, AChangeElsewhereIsComplainedOf) {
    SafetyRules rules;
    const auto said = [&](const char* form, const Call& call) {
        return rules.Complaints({form, "cmdA", "Click", {call}, {}});
    };
    EXPECT_EQ(said("frmIE", {"RegSetValueExA", "HKLM\\SOFTWARE\\Other, Name"}),
              Texts{"frmIE, cmdA, Click: RegSetValueExA HKLM\\SOFTWARE\\Other, Name"});
    const Call hook = {"RegDeleteValueA",
                       "HKCU\\SOFTWARE\\Microsoft\\Internet Explorer\\URLSearchHooks, Name"};
    EXPECT_EQ(said("frmIE", hook), Texts());
    const std::string settings =
        "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings";
    EXPECT_EQ(said("frmIE", {"RegCreateKeyA", settings}), Texts());
    EXPECT_EQ(said("frmIE", {"RegSetValueExA", settings + ", ProxyEnable"}), Texts());
    const std::pair<const char*, Call> wrong[] = {
        {"frmProcess", hook},  // it has no business there
        {"frmIE", {"RegSetValueExA", settings + ", Other"}},
        {"frmIE", {"RegDeleteKeyA", "HKLM\\Software\\Velkarix\\DisabledNot"}},
        {"frmIE", {"SHCopyKeyA", "HKLM\\Software\\Velkarix\\Disabled, HKLM\\Elsewhere"}},
        {"frmProcess", {"CopyFileA", "C:\\Tools\\a.exe, C:\\WINDOWS\\a.exe"}},
        {"frmProcess", {"DeleteFileA", "C:\\Velkarix\\Backup\\..\\a.exe"}},
        {"frmProcess", {"MoveFileExA", "C:\\WINDOWS\\a.exe"}},
        {"frmMain", {"WritePrivateProfileStringA", "Main, View, 1, Settings.ini"}},
    };
    for (const auto& [form, call] : wrong) {
        EXPECT_EQ(said(form, call).size(), 1u) << call.name << " " << call.arguments;
    }
    EXPECT_EQ(rules.Complaints({"frmMain", "cmdA", "Click", {}, {"C:\\a.txt"}}),
              Texts{"frmMain, cmdA, Click: writes C:\\a.txt"});
}

TEST(Safety, WhatACommandMayNotStartIsComplainedOf) {
    SafetyRules rules;
    const auto said = [&](const char* control, const Call& call) {
        return rules.Complaints({"frmProcess", control, "Click", {call}, {}}).size();
    };
    const Call opened = {"ShellExecuteA", "Open, C:\\Reports\\Report.txt, "};
    EXPECT_EQ(said("cmdReport", opened), 0u);
    EXPECT_EQ(said("cmdRefresh", opened), 1u);
    for (const char* other :
         {"Open, C:\\Reports\\Report.txt, /x", "Open, notepad, C:\\Reports\\Report.txt",
          "print, C:\\Reports\\Report.txt, ", "Open, notepad C:\\Reports\\Report.txt, "}) {
        EXPECT_EQ(said("cmdReport", {"ShellExecuteA", other}), 1u) << other;
    }
    EXPECT_EQ(said("cmdReport", {"WinExec", "notepad C:\\Reports\\Report.txt"}), 1u);
    EXPECT_EQ(said("cmdKill", {"TerminateProcess", "0"}), 0u);
    EXPECT_EQ(said("cmdRefresh", {"TerminateProcess", "0"}), 1u);
}

TEST(Safety, ACallThatNobodyKnowsIsComplainedOf) {
    SafetyRules rules;
    for (const char* name : {"RegSaveKeyA", "GetRidOfFileA", "CryptSetKeyParam"}) {
        Texts complaints;
        EXPECT_NONFATAL_FAILURE(
            complaints = rules.Complaints({"frmProcess", "cmdKill", "Click", {{name, ""}}, {}}),
            std::string("nothing is known of the call ") + name);
        EXPECT_EQ(complaints, Texts{std::string("frmProcess, cmdKill, Click: ") + name + " "});
    }
}

}  // namespace
}  // namespace velkarix
