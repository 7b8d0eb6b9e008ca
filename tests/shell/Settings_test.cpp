#include "shell/Settings.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/machine/MemoryMachine.h"

namespace velkarix {
namespace {

const std::string SettingsFile = "C:\\Velkarix\\Settings.ini";

class SettingsTest : public testing::Test {
  protected:
    MemoryMachine machine;
    Settings settings{machine.Parts()};
};

TEST_F(SettingsTest, InstallFolderIsTheProgramsFolderWithoutABackslash) {
    EXPECT_EQ(settings.InstallFolder(), "C:\\Velkarix");
    machine.system.SetProgramPath("C:\\Velkarix.exe");
    EXPECT_EQ(settings.InstallFolder(), "C:");
    machine.system.SetProgramPath("\\\\server\\share\\a b\\Velkarix.exe");
    EXPECT_EQ(settings.InstallFolder(), "\\\\server\\share\\a b");
}

TEST_F(SettingsTest, InstallFolderTakesLongPathsAndAnyLetters) {
    const std::string folder = "D:\\" + std::string(300, 'x') + "\\\xC4\xF6\xFC";
    machine.system.SetProgramPath(folder + "\\Velkarix.exe");
    EXPECT_EQ(settings.InstallFolder(), folder);
}

TEST_F(SettingsTest, InstallFolderIsTheOneToldBeforeWhereTheSystemCanNotTellIt) {
    machine.FailNext("GetModuleFileNameA");
    EXPECT_EQ(settings.InstallFolder(), "");
    EXPECT_EQ(settings.InstallFolder(), "C:\\Velkarix");
    machine.FailNext("GetModuleFileNameA");
    EXPECT_EQ(settings.InstallFolder(), "C:\\Velkarix");
}

TEST_F(SettingsTest, WhatIsWrittenIsReadAgain) {
    settings.WriteIni("Main", "SusColor", "128");
    EXPECT_EQ(settings.ReadIni("Main", "SusColor", "255"), "128");
    EXPECT_EQ(settings.ReadIni("MAIN", "suscolor", "255"), "128");
    EXPECT_TRUE(machine.disk.Exists(SettingsFile));
}

TEST_F(SettingsTest, AnotherFileIsGivenByItsFullPath) {
    settings.WriteIni("Application", "Name", "Velkarix", "C:\\Velkarix\\version.ini");
    EXPECT_FALSE(machine.disk.Exists(SettingsFile));
    EXPECT_EQ(settings.ReadIni("Application", "Name", "", "C:\\Velkarix\\version.ini"), "Velkarix");
    EXPECT_EQ(settings.ReadIni("Application", "Name", "none"), "none");
}

TEST_F(SettingsTest, SettingsIniIsAskedForBesideTheProgram) {
    settings.ReadIni("Main", "View", "0");
    settings.WriteIni("Main", "View", "1");
    EXPECT_EQ(machine.Journal().Names(),
              (std::vector<std::string>{"GetModuleFileNameA", "GetPrivateProfileStringA",
                                        "GetModuleFileNameA", "WritePrivateProfileStringA"}));
    EXPECT_EQ(machine.disk.ContentOf(SettingsFile).value_or("").substr(0, 6), "[Main]");
}

TEST_F(SettingsTest, WithoutAFileSectionOrKeyTheDefaultApplies) {
    EXPECT_EQ(settings.ReadIni("Main", "FontBold", "1"), "1");
    machine.AddFile(SettingsFile).Content("[Other]\r\nFontBold=0\r\n");
    EXPECT_EQ(settings.ReadIni("Main", "FontBold", "1"), "1");
    EXPECT_EQ(settings.ReadIni("Other", "View", "7"), "7");
}

TEST_F(SettingsTest, AKeyWithAnEmptyValueIsEmptyAndNotTheDefault) {
    machine.AddFile(SettingsFile).Content("[Main]\r\nView=\r\n");
    EXPECT_EQ(settings.ReadIni("Main", "View", "1"), "");
}

TEST_F(SettingsTest, AValueOfMoreThan254CharactersIsCut) {
    machine.AddFile(SettingsFile)
        .Content("[Main]\r\nA=" + std::string(254, 'x') + "\r\nB=" + std::string(255, 'y') +
                 "\r\n");
    EXPECT_EQ(settings.ReadIni("Main", "A", ""), std::string(254, 'x'));
    EXPECT_EQ(settings.ReadIni("Main", "B", ""), std::string(254, 'y'));
}

TEST_F(SettingsTest, AFileOfGarbageIsReadAsFarAsItGoes) {
    std::string garbage;
    for (int i = 0; i < 4096; ++i) garbage += static_cast<char>(i * 37 % 256);
    machine.AddFile(SettingsFile).Content(garbage + "\r\n]][[=\r\n[Main]\r\nView=1\r\n" + garbage);
    EXPECT_EQ(settings.ReadIni("Main", "View", "0"), "1");
    EXPECT_EQ(settings.ReadIni("Main", "Filter", "1"), "1");
}

TEST_F(SettingsTest, AFileWithVeryLongLinesIsRead) {
    const std::string line(10'000'000, 'x');
    machine.AddFile(SettingsFile)
        .Content("[Main]\r\n" + line + "=1\r\nLong=" + line + "\r\nView=1\r\n");
    EXPECT_EQ(settings.ReadIni("Main", "View", "0"), "1");
    EXPECT_EQ(settings.ReadIni("Main", "Long", ""), std::string(254, 'x'));
}

TEST_F(SettingsTest, AFileThatCantBeWrittenStaysAsItIsWithoutAWord) {
    const std::string before = "[Main]\r\nFirstRun=0\r\n";
    machine.AddFile(SettingsFile).Content(before).ReadOnly();
    settings.WriteIni("Main", "FirstRun", "1");
    EXPECT_EQ(machine.disk.ContentOf(SettingsFile), before);
    EXPECT_EQ(settings.ReadIni("Main", "FirstRun", "0"), "0");
    machine.FailNext("WritePrivateProfileStringA");
    settings.WriteIni("Main", "FirstRun", "1", "C:\\Velkarix\\Other.ini");
    EXPECT_FALSE(machine.disk.Exists("C:\\Velkarix\\Other.ini"));
}

TEST_F(SettingsTest, ATextWithANulEndsThere) {
    struct NulFiles : MemoryProfileFiles {
        using MemoryProfileFiles::MemoryProfileFiles;
        std::string GetPrivateProfileStringA(const std::string&, const std::string&,
                                             const std::string&, std::uint32_t capacity,
                                             const std::string&) override {
            EXPECT_EQ(capacity, 255u);
            return std::string("ab\0cd", 5);
        }
    } files(machine.Journal(), machine.disk);
    const Machine real = machine.Parts();
    const Machine parts{real.registry, files,        real.versionResources,
                        real.files,    real.clock,   real.processes,
                        real.token,    real.shell,   real.shortcuts,
                        real.system,   real.windows, real.cryptography};
    EXPECT_EQ(Settings(parts).ReadIni("Main", "View", ""), "ab");
}

// ---- Numbers

TEST(NumericPrefixTest, TakesTheLongestNumberAtTheStart) {
    EXPECT_EQ(NumericPrefix("255"), 255);
    EXPECT_EQ(NumericPrefix("12ab"), 12);
    EXPECT_EQ(NumericPrefix("-7"), -7);
    EXPECT_EQ(NumericPrefix("+7"), 7);
    EXPECT_EQ(NumericPrefix("1.5"), 1.5);
    EXPECT_EQ(NumericPrefix(".5"), 0.5);
    EXPECT_EQ(NumericPrefix("5."), 5);
    EXPECT_EQ(NumericPrefix("1.2.3"), 1.2);
    EXPECT_EQ(NumericPrefix("1,5"), 1);
    EXPECT_EQ(NumericPrefix("8421504"), 8421504);
    EXPECT_EQ(NumericPrefix("0.1"), 0.1);
    EXPECT_EQ(NumericPrefix("123456789.123456"), 123456789.123456);
}

TEST(NumericPrefixTest, SkipsLeadingBlanks) {
    EXPECT_EQ(NumericPrefix("   1 2"), 1);
    EXPECT_EQ(NumericPrefix("\t3"), 3);
    EXPECT_EQ(NumericPrefix("- 3"), 0);
}

TEST(NumericPrefixTest, TakesAnExponentThatHasDigits) {
    EXPECT_EQ(NumericPrefix("1e3"), 1000);
    EXPECT_EQ(NumericPrefix("1.5E-2x"), 0.015);
    EXPECT_EQ(NumericPrefix("1e+2"), 100);
    EXPECT_EQ(NumericPrefix("1e"), 1);
    EXPECT_EQ(NumericPrefix("2e+"), 2);
    EXPECT_EQ(NumericPrefix("2eggs"), 2);
}

TEST(NumericPrefixTest, IsZeroWithoutANumber) {
    for (const char* text :
         {"", " ", "abc", "-", "+", ".", "-.", "e5", "true", "&H10", "nan", "inf",
          "\xE9"
          "1"}) {
        EXPECT_EQ(NumericPrefix(text), 0) << text;
    }
    EXPECT_EQ(NumericPrefix(std::string_view("\0"
                                             "1",
                                             2)),
              0);
}

TEST(NumericPrefixTest, BearsNumbersOfAnyLength) {
    EXPECT_EQ(NumericPrefix("0" + std::string(100'000, '0') + "7"), 7);
    EXPECT_EQ(NumericPrefix("0." + std::string(100'000, '0') + "7"), 0);
    EXPECT_NEAR(NumericPrefix("1" + std::string(30, '0')), 1e30, 1e15);
    EXPECT_NEAR(NumericPrefix("0." + std::string(29, '0') + "1"), 1e-30, 1e-45);
    EXPECT_NEAR(NumericPrefix("99999999999999999999999999"), 1e26, 1e11);
    EXPECT_EQ(NumericPrefix("0e99999999999999999999"), 0);
    EXPECT_EQ(NumericPrefix("1e-99999999999999999999"), 0);
    EXPECT_GT(NumericPrefix("1e99999999999999999999"), 1e300);
    EXPECT_GT(NumericPrefix(std::string(100'000, '9')), 1e300);
}

TEST(RoundedNumberTest, RoundsHalvesToTheEvenNumber) {
    EXPECT_EQ(RoundedNumber("0.5"), 0);
    EXPECT_EQ(RoundedNumber("1.5"), 2);
    EXPECT_EQ(RoundedNumber("2.5"), 2);
    EXPECT_EQ(RoundedNumber("3.5"), 4);
    EXPECT_EQ(RoundedNumber("-0.5"), 0);
    EXPECT_EQ(RoundedNumber("-1.5"), -2);
    EXPECT_EQ(RoundedNumber("-2.5"), -2);
}

TEST(RoundedNumberTest, RoundsOtherFractionsToTheNearest) {
    EXPECT_EQ(RoundedNumber("2.4999"), 2);
    EXPECT_EQ(RoundedNumber("2.5001"), 3);
    EXPECT_EQ(RoundedNumber("-2.6"), -3);
    EXPECT_EQ(RoundedNumber("-2.4"), -2);
}

TEST(RoundedNumberTest, TakesThePrefixAndZeroWithoutOne) {
    EXPECT_EQ(RoundedNumber("8421504 grey"), 8421504);
    EXPECT_EQ(RoundedNumber("grey"), 0);
    EXPECT_EQ(RoundedNumber(""), 0);
}

TEST(RoundedNumberTest, StaysInside32Bits) {
    EXPECT_EQ(RoundedNumber("2147483647"), 2147483647);
    EXPECT_EQ(RoundedNumber("-2147483648"), -2147483647 - 1);
    EXPECT_EQ(RoundedNumber("2147483648"), 2147483647);
    EXPECT_EQ(RoundedNumber("-1e300"), -2147483647 - 1);
    EXPECT_EQ(RoundedNumber(std::string(1000, '9')), 2147483647);
}

TEST(StrictNumberTest, TakesATextThatIsANumberWhole) {
    EXPECT_EQ(StrictNumber("1"), 1);
    EXPECT_EQ(StrictNumber(" -1.5 "), -1.5);
    EXPECT_EQ(StrictNumber("1e2"), 100);
}

TEST(StrictNumberTest, RefusesEverythingElse) {
    for (const char* text : {"", " ", "yes", "1x", "1 2", "1e", "-", ".", "true"}) {
        EXPECT_EQ(StrictNumber(text), std::nullopt) << text;
    }
}

}  // namespace
}  // namespace velkarix
