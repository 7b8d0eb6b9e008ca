#include <gtest/gtest.h>

#include <string>

#include "tests/conformance/ShortcutReaders.h"

namespace velkarix {

// What isn't there, is no shortcut, or is one no more.
class BrokenShortcutConformance : public ShortcutConformance {};

INSTANTIATE_TEST_SUITE_P(Home, BrokenShortcutConformance, testing::ValuesIn(FamiliesOfHome()),
                         NameOfFamily);

TEST_P(BrokenShortcutConformance, WhatIsNotThereIsNoShortcut) {
    ExpectNone(In("missing.lnk"));
    ExpectNone(In("missing\\a.lnk"));
    ExpectNone(home_->MissingDrive() + "\\a.lnk");
    ExpectNone("");
}

TEST_P(BrokenShortcutConformance, AFolderIsNoShortcut) {
    machine_.files.CreateDirectoryA(In("folder.lnk"));
    ExpectNone(In("folder.lnk"));
}

TEST_P(BrokenShortcutConformance, APathThatIsTooLongIsNoShortcut) {
    std::string path = In("");
    path.append(300, 'l').append(".lnk");
    ExpectNone(path);
}

TEST_P(BrokenShortcutConformance, AFileThatSomebodyHoldsForHimselfIsNotRead) {
    home_->MakeFile(In("tool.exe"), "MZ");
    home_->MakeShortcut(In("a.lnk"), {In("tool.exe"), "", ""});
    home_->Lock(In("a.lnk"));
    ExpectNone(In("a.lnk"));
}

TEST_P(BrokenShortcutConformance, OtherFilesAreNoShortcuts) {
    home_->MakeFile(In("empty.lnk"), "");
    ExpectNone(In("empty.lnk"));
    home_->MakeFile(In("text.lnk"), "[InternetShortcut]\r\nURL=http://example.com/\r\n");
    ExpectNone(In("text.lnk"));
    std::string garbage;
    garbage.append(2000, '\xFF');
    home_->MakeFile(In("garbage.lnk"), garbage);
    ExpectNone(In("garbage.lnk"));
}

TEST_P(BrokenShortcutConformance, AFileCutAnywhereIsNoShortcut) {
    home_->MakeFile(In("tool.exe"), "MZ");
    home_->MakeShortcut(In("a.lnk"), {In("tool.exe"), "/a", In("tool.exe") + ",1"});
    const std::string whole = home_->ContentOf(In("a.lnk"));
    // The last four bytes say no more than that nothing follows.
    for (std::size_t size = 0; size < whole.size() - 4; size += 11) {
        home_->MakeFile(In("cut.lnk"), whole.substr(0, size));
        ExpectNone(In("cut.lnk"));
    }
}

TEST_P(BrokenShortcutConformance, BrokenBytesDoNoHarm) {
    home_->MakeFile(In("tool.exe"), "MZ");
    home_->MakeShortcut(In("a.lnk"), {In("tool.exe"), "/a", In("tool.exe") + ",1"});
    const std::string whole = home_->ContentOf(In("a.lnk"));
    for (std::size_t position = 0; position < whole.size(); position += 5) {
        std::string broken = whole;
        broken[position] = '\xFF';
        home_->MakeFile(In("broken.lnk"), broken);
        for (ShortcutReader* reader : {scriptShell_.get(), shellLink_.get()}) {
            const auto read = ReadBy(*reader, In("broken.lnk"));
            EXPECT_LT(read.value_or(Shortcut()).targetPath.size(), 260u);
        }
    }
}

}  // namespace velkarix
