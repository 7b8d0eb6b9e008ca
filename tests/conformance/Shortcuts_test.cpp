#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/conformance/ShortcutReaders.h"
#include "tests/machine/ShortcutFile.h"

namespace velkarix {
namespace {

std::string Text(const Bytes& bytes) {
    return {bytes.begin(), bytes.end()};
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Home, ShortcutConformance, testing::ValuesIn(FamiliesOfHome()),
                         NameOfFamily);

TEST_P(ShortcutConformance, APlainShortcutHasATargetAlone) {
    home_->MakeFile(In("tool.exe"), "MZ");
    ExpectKept({In("tool.exe"), "", ",0"});
}

TEST_P(ShortcutConformance, ArgumentsAndIconComeBackAsTheyWere) {
    home_->MakeFile(In("tool.exe"), "MZ");
    home_->MakeFile(In("icons.dll"), "MZ");
    ExpectKept({In("tool.exe"), "/a \"b c\"  -d=e ", In("icons.dll") + ",3"});
}

TEST_P(ShortcutConformance, AnIconsIndexMayBeItsNumberInTheFile) {
    home_->MakeFile(In("tool.exe"), "MZ");
    ExpectKept({In("tool.exe"), "", In("tool.exe") + ",-7"});
}

TEST_P(ShortcutConformance, VariablesInTheIconsFileStayAsTheyStand) {
    home_->MakeFile(In("tool.exe"), "MZ");
    ExpectKept({In("tool.exe"), "", "%SystemRoot%\\tool.exe,1"});
}

TEST_P(ShortcutConformance, ATargetThatIsGoneIsToldAllTheSame) {
    home_->MakeFile(In("tool.exe"), "MZ");
    const Shortcut shortcut{In("tool.exe"), "/a", ",0"};
    home_->MakeShortcut(In("a.lnk"), shortcut);
    machine_.files.DeleteFileA(In("tool.exe"));
    ExpectRead(In("a.lnk"), shortcut);
}

TEST_P(ShortcutConformance, ATargetMayBeAFolder) {
    machine_.files.CreateDirectoryA(In("a folder"));
    ExpectKept({In("a folder"), "", ",0"});
}

TEST_P(ShortcutConformance, AShortcutNeedsNoFileTarget) {
    ExpectKept({"", "", In("icons.dll") + ",2"});
}

TEST_P(ShortcutConformance, AccentsComeBackInTheAnsiCodePage) {
    home_->MakeFile(In("caf\xE9.exe"), "MZ");
    const Shortcut shortcut{In("caf\xE9.exe"), "\xE0", In("caf\xE9.exe") + ",0"};
    home_->MakeShortcut(In("caf\xE9.lnk"), shortcut);
    ExpectRead(In("caf\xE9.lnk"), shortcut);
}

TEST_P(ShortcutConformance, LongArgumentsComeBackWhole) {
    home_->MakeFile(In("tool.exe"), "MZ");
    std::string arguments;
    arguments.append(1000, 'x');
    ExpectKept({In("tool.exe"), arguments, ",0"});
}

TEST_P(ShortcutConformance, ACopyIsAShortcutToo) {
    home_->MakeFile(In("tool.exe"), "MZ");
    const Shortcut shortcut{In("tool.exe"), "/a", In("tool.exe") + ",1"};
    home_->MakeShortcut(In("a.lnk"), shortcut);
    machine_.files.CreateDirectoryA(In("Held"));
    ASSERT_EQ(machine_.files.CopyFileA(In("a.lnk"), In("Held\\b.lnk")), error::Success);
    ExpectRead(In("Held\\b.lnk"), shortcut);
}

TEST_P(ShortcutConformance, AReaderKeepsNothingOfTheFileBefore) {
    home_->MakeFile(In("tool.exe"), "MZ");
    const Shortcut full{In("tool.exe"), "/a", In("icons.dll") + ",4"};
    const Shortcut plain{In("tool.exe"), "", ",0"};
    home_->MakeShortcut(In("full.lnk"), full);
    home_->MakeShortcut(In("plain.lnk"), plain);
    ExpectRead(In("full.lnk"), full);
    ExpectRead(In("plain.lnk"), plain);
    ExpectRead(In("full.lnk"), full);
}

TEST_P(ShortcutConformance, ReadersAreIndependent) {
    home_->MakeFile(In("tool.exe"), "MZ");
    const Shortcut plain{In("tool.exe"), "", ",0"};
    home_->MakeShortcut(In("a.lnk"), plain);
    const auto other = machine_.shortcuts.MakeShellLink();
    ASSERT_NE(other, nullptr);
    shellLink_.reset();
    EXPECT_EQ(ReadBy(*other, In("a.lnk")), plain);
}

TEST_P(ShortcutConformance, ReadingWritesNothing) {
    home_->MakeFile(In("tool.exe"), "MZ");
    home_->MakeShortcut(In("a.lnk"), {In("tool.exe"), "/a", ""});
    const std::string before = home_->ContentOf(In("a.lnk"));
    machine_.files.DeleteFileA(In("tool.exe"));
    ReadBy(*scriptShell_, In("a.lnk"));
    ReadBy(*shellLink_, In("a.lnk"));
    EXPECT_EQ(home_->ContentOf(In("a.lnk")), before);
    ExpectNone(In("missing.lnk"));
    EXPECT_EQ(machine_.files.GetFileAttributesA(In("missing.lnk")), fileAttribute::Invalid);
}

TEST_P(ShortcutConformance, TheBytesThatTestsMakeAreThoseOfAShortcut) {
    for (const Shortcut& shortcut :
         {Shortcut{In("tool.exe"), "/a b", In("icons.dll") + ",-3"},
          Shortcut{In("tool.exe"), "", ",0"}, Shortcut{"", "/a", In("icons.dll") + ",2"},
          Shortcut{"%SystemRoot%\\tool.exe", "", ",0"}}) {
        home_->MakeFile(In("made.lnk"), Text(MakeShortcutFile(shortcut)));
        ExpectRead(In("made.lnk"), shortcut);
    }
}

}  // namespace velkarix
