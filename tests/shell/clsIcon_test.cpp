#include "shell/clsIcon.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/machine/MemoryMachine.h"

namespace velkarix {
namespace {

const std::string Path = "C:\\WINDOWS\\tool.exe";
const Picture Large{2, 1, {0xFF000001, 0xFF000002}};
const Picture Small{1, 1, {0xFF000003}};

class clsIconTest : public testing::Test {
  protected:
    clsIconTest() { machine.AddFile(Path).Icon(0, Large, Small).Icon(-7, Small, Large); }
    void TearDown() override { EXPECT_EQ(machine.shell.OpenIconCount(), 0u); }

    MemoryMachine machine;
    clsIcon icons{machine.shell};
};

TEST_F(clsIconTest, DrawsTheWantedSizeAndDestroysBothHandles) {
    EXPECT_EQ(icons.GetIconFromFile(Path, 0, true), Large);
    EXPECT_EQ(machine.Journal().Names(), (std::vector<std::string>{"ExtractIconExA", "DrawIconEx",
                                                                   "DestroyIcon", "DestroyIcon"}));
    EXPECT_EQ(icons.GetIconFromFile(Path, 0, false), Small);
}

TEST_F(clsIconTest, DrawsBothSizesOfOneExtraction) {
    const IconPictures both = icons.GetIcons(Path, -7);
    EXPECT_EQ(both.large, Small);
    EXPECT_EQ(both.small, Large);
    EXPECT_EQ(machine.Journal().Names(),
              (std::vector<std::string>{"ExtractIconExA", "DrawIconEx", "DrawIconEx", "DestroyIcon",
                                        "DestroyIcon"}));
    EXPECT_EQ(machine.Journal().ArgumentsOf("ExtractIconExA"),
              (std::vector<std::string>{Path + ", -7"}));
}

TEST_F(clsIconTest, GivesTheSizeThatCanBeDrawn) {
    machine.FailNext("DrawIconEx");
    const IconPictures both = icons.GetIcons(Path, 0);
    EXPECT_EQ(both.large, std::nullopt);
    EXPECT_EQ(both.small, Small);
}

TEST_F(clsIconTest, GivesNeitherSizeOfAMissingIcon) {
    for (const std::string& path : {Path, std::string("C:\\missing.exe"), std::string()}) {
        const IconPictures both = icons.GetIcons(path, 1);
        EXPECT_EQ(both.large, std::nullopt);
        EXPECT_EQ(both.small, std::nullopt);
    }
    EXPECT_EQ(machine.Journal().CountOf("DrawIconEx"), 0u);
}

TEST_F(clsIconTest, TakesTheIndexAsTheSystemDoes) {
    EXPECT_EQ(icons.GetIconFromFile(Path, -7, true), Small);
    EXPECT_EQ(machine.Journal().ArgumentsOf("ExtractIconExA"),
              (std::vector<std::string>{Path + ", -7"}));
}

TEST_F(clsIconTest, AFileWithoutThatIconGivesNothing) {
    EXPECT_EQ(icons.GetIconFromFile(Path, 1, true), std::nullopt);
    EXPECT_EQ(icons.GetIconFromFile("C:\\missing.exe", 0, true), std::nullopt);
    EXPECT_EQ(icons.GetIconFromFile("", 0, false), std::nullopt);
    EXPECT_EQ(machine.Journal().CountOf("DrawIconEx"), 0u);
}

TEST_F(clsIconTest, BothHandlesAreDestroyedAlsoWhenDrawingFails) {
    machine.FailNext("DrawIconEx");
    EXPECT_EQ(icons.GetIconFromFile(Path, 0, true), std::nullopt);
    EXPECT_EQ(machine.Journal().CountOf("DestroyIcon"), 2u);
}

// A shell that reports what a test says.
struct OddShell : MemoryShell {
    using MemoryShell::MemoryShell;
    ExtractedIcons ExtractIconExA(const std::string&, int) override { return icons; }
    std::optional<Picture> DrawIconEx(IconHandle) override { return Picture{}; }
    bool DestroyIcon(IconHandle icon) override {
        destroyed.push_back(icon);
        return true;
    }

    ExtractedIcons icons;
    std::vector<IconHandle> destroyed;
};

TEST_F(clsIconTest, AnIconInTheOtherSizeOnlyIsNoneAndIsDestroyed) {
    OddShell shell(machine.Journal(), machine.disk);
    shell.icons = {1, 0, 5};
    EXPECT_EQ(clsIcon(shell).GetIconFromFile(Path, 0, true), std::nullopt);
    EXPECT_EQ(shell.destroyed, (std::vector<IconHandle>{5}));
}

TEST_F(clsIconTest, BothSizesOfAnIconInOneSizeOnlyAreThatOne) {
    OddShell shell(machine.Journal(), machine.disk);
    shell.icons = {1, 4, 0};
    const IconPictures both = clsIcon(shell).GetIcons(Path, 0);
    EXPECT_TRUE(both.large.has_value());
    EXPECT_EQ(both.small, std::nullopt);
    EXPECT_EQ(shell.destroyed, (std::vector<IconHandle>{4}));
}

TEST_F(clsIconTest, HandlesOfACallThatReportsNoIconAreDestroyedToo) {
    OddShell shell(machine.Journal(), machine.disk);
    shell.icons = {0, 4, 5};
    EXPECT_EQ(clsIcon(shell).GetIconFromFile(Path, 0, true), std::nullopt);
    EXPECT_EQ(shell.destroyed, (std::vector<IconHandle>{4, 5}));
    EXPECT_EQ(clsIcon(shell).GetIcons(Path, 0).small, std::nullopt);
    EXPECT_EQ(shell.destroyed, (std::vector<IconHandle>{4, 5, 4, 5}));
}

}  // namespace
}  // namespace velkarix
