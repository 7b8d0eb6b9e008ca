#include <gtest/gtest.h>

#include <string>

#include "tests/conformance/Home.h"

namespace velkarix {

class SystemConformance : public Conformance {
  protected:
    SystemFacts& system_ = machine_.system;
};

INSTANTIATE_TEST_SUITE_P(Home, SystemConformance, testing::ValuesIn(FamiliesOfHome()),
                         NameOfFamily);

TEST_P(SystemConformance, TheVersionTellsTheFamily) {
    const auto version = system_.GetVersionExA();
    ASSERT_TRUE(version.has_value());
    EXPECT_EQ(version->platform, IsNt() ? 2u : 1u);
    EXPECT_EQ(version->servicePack.size(), 128u);
    EXPECT_NE(version->servicePack.find('\0'), std::string::npos);
    EXPECT_EQ((system_.GetVersion() & 0x80000000) == 0, IsNt());
}

TEST_P(SystemConformance, BothVersionCallsAgree) {
    const auto version = system_.GetVersionExA();
    ASSERT_TRUE(version.has_value());
    const std::uint32_t number = system_.GetVersion();
    EXPECT_EQ(number & 0xFF, version->major);
    EXPECT_EQ(number >> 8 & 0xFF, version->minor);
    if (IsNt()) {  // the 95 family keeps the upper half for itself
        EXPECT_EQ(number >> 16, version->build);
    }
}

TEST_P(SystemConformance, The95FamilyRepeatsTheVersionInTheBuildNumber) {
    const auto version = system_.GetVersionExA();
    ASSERT_TRUE(version.has_value());
    EXPECT_EQ(version->build >> 16, IsNt() ? 0 : version->major << 8 | version->minor);
}

TEST_P(SystemConformance, NamesNeedRoomForTheirNul) {
    const auto computer = system_.GetComputerNameA(256);
    const auto user = system_.GetUserNameA(256);
    ASSERT_TRUE(computer.has_value());
    ASSERT_TRUE(user.has_value());
    EXPECT_EQ(system_.GetComputerNameA(static_cast<std::uint32_t>(computer->size())), std::nullopt);
    EXPECT_EQ(system_.GetUserNameA(static_cast<std::uint32_t>(user->size())), std::nullopt);
    EXPECT_EQ(system_.GetUserNameA(static_cast<std::uint32_t>(user->size()) + 1), user);
}

TEST_P(SystemConformance, AnErrorsTextEndsWithALineBreak) {
    for (const ErrorCode code : {error::Success, error::FileNotFound, error::PathNotFound,
                                 error::AccessDenied, error::InvalidHandle, error::KeyDeleted}) {
        const std::string text = system_.FormatMessageA(code, 256);
        EXPECT_GT(text.size(), 3u) << code;
        EXPECT_TRUE(text.ends_with("\r\n")) << code;
    }
}

TEST_P(SystemConformance, AnUnknownCodeOrATooSmallBufferGivesNoText) {
    EXPECT_EQ(system_.FormatMessageA(0x2FFFFFFF, 256), "");
    const std::string text = system_.FormatMessageA(error::AccessDenied, 256);
    const auto size = static_cast<std::uint32_t>(text.size());
    EXPECT_EQ(system_.FormatMessageA(error::AccessDenied, size), "");
    EXPECT_EQ(system_.FormatMessageA(error::AccessDenied, size + 1), text);
}

TEST_P(SystemConformance, VariablesAreAskedForWithoutCase) {
    home_->SetVariable("VelkarixTest", "Some Value");
    EXPECT_EQ(system_.GetEnvironmentVariableA("VELKARIXTEST"), "Some Value");
    EXPECT_EQ(system_.GetEnvironmentVariableA("VelkarixMissing"), "");
}

TEST_P(SystemConformance, ThePathAndTheWindowsFolderAreVariables) {
    EXPECT_NE(system_.GetEnvironmentVariableA("path"), "");
    EXPECT_NE(system_.GetEnvironmentVariableA("windir"), "");
}

TEST_P(SystemConformance, VariablesAreExpandedAnywhereInAText) {
    home_->SetVariable("VelkarixTest", "value");
    const auto expand = [&](const std::string& text) {
        return system_.ExpandEnvironmentStringsA(text, 1024);
    };
    EXPECT_EQ(expand("no variable"), "no variable");
    EXPECT_EQ(expand(""), "");
    EXPECT_EQ(expand("<%VELKARIXTEST%>\\<%VelkarixTest%>"), "<value>\\<value>");
}

TEST_P(SystemConformance, WhatIsNoVariableStays) {
    home_->SetVariable("VelkarixTest", "value");
    const auto expand = [&](const std::string& text) {
        return system_.ExpandEnvironmentStringsA(text, 1024);
    };
    EXPECT_EQ(expand("%VelkarixMissing%\\a.exe"), "%VelkarixMissing%\\a.exe");
    EXPECT_EQ(expand("100%"), "100%");
    EXPECT_EQ(expand("%VelkarixTest% 100%"), "value 100%");
    EXPECT_EQ(expand("%%"), "%%");
    // The sign that ends an unknown name doesn't begin another.
    EXPECT_EQ(expand("100% %VelkarixTest%"), "100% %VelkarixTest%");
    EXPECT_EQ(expand("%VelkarixMissing%VelkarixTest%"), "%VelkarixMissing%VelkarixTest%");
}

TEST_P(SystemConformance, ExpandingNeedsRoomForTheNul) {
    home_->SetVariable("VelkarixTest", "value");
    EXPECT_EQ(system_.ExpandEnvironmentStringsA("%VelkarixTest%", 5), std::nullopt);
    EXPECT_EQ(system_.ExpandEnvironmentStringsA("%VelkarixTest%", 6), "value");
}

TEST_P(SystemConformance, WideTextBecomesTextOfTheCodePage) {
    EXPECT_EQ(system_.WideCharToMultiByte(u"C:\\Apps\\a b.exe ~"), "C:\\Apps\\a b.exe ~");
    EXPECT_EQ(system_.WideCharToMultiByte(u"\u00FC\u00C4\u00DF"), "\xFC\xC4\xDF");
}

TEST_P(SystemConformance, AWideCharacterThatTheCodePageLacksBecomesAQuestionMark) {
    EXPECT_EQ(system_.WideCharToMultiByte(u"a\u4E2Db"), "a?b");
    EXPECT_EQ(system_.WideCharToMultiByte(u"\uFFFF"), "?");
}

TEST_P(SystemConformance, WideTextKeepsItsLength) {
    EXPECT_EQ(system_.WideCharToMultiByte(u""), "");
    EXPECT_EQ(system_.WideCharToMultiByte(std::u16string(u"a\0b", 3)), std::string("a\0b", 3));
    EXPECT_EQ(system_.WideCharToMultiByte(std::u16string(70000, u'x')), std::string(70000, 'x'));
}

TEST_P(SystemConformance, TheProgramsOwnPathIsAFile) {
    const std::string path = system_.GetModuleFileNameA();
    EXPECT_EQ(path.substr(1, 2), ":\\");
    EXPECT_EQ(machine_.files.PathFileExistsA(path), true);
}

}  // namespace velkarix
