#include <gtest/gtest.h>

#include <string>

#include "shell/ShortcutCheck.h"
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

// Systems exist whose objects fall over broken files, so that the program keeps from them what
// isn't whole. What is left must do no harm.
class BrokenBytesConformance : public BrokenShortcutConformance {
  protected:
    std::string WholeFile() {
        home_->MakeFile(In("tool.exe"), "MZ");
        home_->MakeShortcut(In("a.lnk"), {In("tool.exe"), "/a", In("tool.exe") + ",1"});
        return home_->ContentOf(In("a.lnk"));
    }
    void ExpectHarmless(const std::string& file) {
        if (!IsWholeShortcut(file)) return;
        home_->MakeFile(In("broken.lnk"), file);
        for (ShortcutReader* reader : {scriptShell_.get(), shellLink_.get()}) {
            const auto read = ReadBy(*reader, In("broken.lnk"));
            EXPECT_LT(read.value_or(Shortcut()).targetPath.size(), 260u);
        }
    }
};

INSTANTIATE_TEST_SUITE_P(Home, BrokenBytesConformance, testing::ValuesIn(FamiliesOfHome()),
                         NameOfFamily);

TEST_P(BrokenBytesConformance, WhatTheSystemWritesIsWhole) {
    EXPECT_TRUE(IsWholeShortcut(WholeFile()));
    home_->MakeShortcut(In("bare.lnk"), {});
    EXPECT_TRUE(IsWholeShortcut(home_->ContentOf(In("bare.lnk"))));
}

TEST_P(BrokenBytesConformance, AFileCutAnywhereDoesNoHarm) {
    const std::string whole = WholeFile();
    for (std::size_t size = 0; size < whole.size(); ++size) ExpectHarmless(whole.substr(0, size));
}

TEST_P(BrokenBytesConformance, BrokenBytesDoNoHarm) {
    const std::string whole = WholeFile();
    for (std::size_t position = 0; position < whole.size(); ++position) {
        std::string broken = whole;
        broken[position] = '\xFF';
        ExpectHarmless(broken);
    }
}

}  // namespace velkarix
