#include "shell/FileCompare.h"

#include <gtest/gtest.h>

#include "tests/machine/MemoryMachine.h"

namespace velkarix {
namespace {

class FileCompareTest : public testing::Test {
  protected:
    bool Same() { return SameContent(machine.files, "C:\\a", "C:\\b"); }
    MemoryMachine machine;
};

TEST_F(FileCompareTest, ComparesFilesOfManyBlocks) {
    const std::string text(200000, 'x');
    machine.AddFile("C:\\a").Content(text);
    machine.AddFile("C:\\b").Content(text);
    EXPECT_TRUE(Same());
    EXPECT_EQ(machine.files.OpenFileCount(), 0u);
}

TEST_F(FileCompareTest, SeesADifferenceInTheLastByteAndInLength) {
    machine.AddFile("C:\\a").Content(std::string(70000, 'x').append("1"));
    machine.AddFile("C:\\b").Content(std::string(70000, 'x').append("2"));
    EXPECT_FALSE(Same());
    machine.AddFile("C:\\b").Content(std::string(70000, 'x'));
    EXPECT_FALSE(Same());
    machine.AddFile("C:\\b").Content("");
    EXPECT_FALSE(Same());
}

TEST_F(FileCompareTest, TakesWhatItCanNotReadForDifferent) {
    EXPECT_FALSE(Same());
    machine.AddFile("C:\\a").Content("x");
    EXPECT_FALSE(Same());
    machine.AddFile("C:\\b").Content("x");
    machine.FailNext("ReadFile");
    EXPECT_FALSE(Same());
    EXPECT_EQ(machine.files.OpenFileCount(), 0u);
}

}  // namespace
}  // namespace velkarix
