#include "shell/Suspicion.h"

#include <gtest/gtest.h>

#include "tests/machine/TestProgram.h"

namespace velkarix {
namespace {

TEST(Suspicion, AsksTheListOfClassesAndTheListOfPrograms) {
    TestProgram program;
    program.AddInstalledFile("SusCLSID.vkl").Content("{aa-11}\r\n{bb-22}\r\n");
    program.AddInstalledFile("SusProcess.vkl").Content("0cc175b9c0f1b6a831c399e269772661\r\n");
    program.Start();
    const Application& application = program.application;
    EXPECT_TRUE(IsSuspiciousClsid(application, "{bb-22}"));
    EXPECT_FALSE(IsSuspiciousClsid(application, "{BB-22}"));
    EXPECT_FALSE(IsSuspiciousClsid(application, "0cc175b9c0f1b6a831c399e269772661"));
    EXPECT_TRUE(IsSuspiciousFileHash(application, "0cc175b9c0f1b6a831c399e269772661"));
    EXPECT_FALSE(IsSuspiciousFileHash(application, "{bb-22}"));
}

TEST(Suspicion, TakesAPartOfAnEntryForTheEntry) {
    TestProgram program;
    program.AddInstalledFile("SusCLSID.vkl").Content("{aa-11}\r\n");
    program.Start();
    EXPECT_TRUE(IsSuspiciousClsid(program.application, "a-1"));
    EXPECT_FALSE(IsSuspiciousClsid(program.application, ""));
}

}  // namespace
}  // namespace velkarix
