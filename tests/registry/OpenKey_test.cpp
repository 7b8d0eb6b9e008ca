#include "registry/OpenKey.h"

#include <initializer_list>

#include "tests/registry/RegistryFixture.h"

namespace velkarix {
namespace {

constexpr std::size_t NoCut = std::string_view::npos;

// Names of so many letters, one below the other.
std::string Path(std::initializer_list<std::size_t> names) {
    std::string path;
    for (const std::size_t letters : names) {
        if (!path.empty()) path.push_back('\\');
        path.append(letters, 'a');
    }
    return path;
}

TEST(WithoutEmptyNames, LeavesOutWhatPartsNothing) {
    EXPECT_EQ(WithoutEmptyNames("a\\\\\\b\\\\"), "a\\b");
    EXPECT_EQ(WithoutEmptyNames("\\\\a"), "\\a");
    EXPECT_EQ(WithoutEmptyNames("a\\b"), "a\\b");
    EXPECT_EQ(WithoutEmptyNames("\\"), "");
}

// The backslash may be its second byte.
TEST(WithoutEmptyNames, LeavesDoubleByteCharactersWhole) {
    EXPECT_EQ(WithoutEmptyNames("\x83\\\\b"), "\x83\\\\b");
    EXPECT_EQ(WithoutEmptyNames("a\x83\\"), "a\x83\\");
}

TEST(CutOf, PartsWhatIsTooLongForACallAtTheLastBackslashWithinReach) {
    EXPECT_EQ(CutOf(Path({8, 250})), NoCut);
    EXPECT_EQ(CutOf(Path({8, 251})), 8u);
    EXPECT_EQ(CutOf(Path({100, 100, 100})), 201u);
    EXPECT_EQ(CutOf(Path({259, 1})), 259u);
    EXPECT_EQ(CutOf(Path({260, 1})), NoCut);
    EXPECT_EQ(CutOf(std::string("\\").append(300, 'a')), NoCut);
}

TEST(CutOf, PartsNoDoubleByteCharacter) {
    std::string path = Path({8, 200, 100});
    EXPECT_EQ(CutOf(path), 209u);
    path[208] = '\x83';
    EXPECT_EQ(CutOf(path), 8u);
    path[7] = '\x83';
    EXPECT_EQ(CutOf(path), NoCut);
}

using OpenKeyTest = RegistryFixture;

// Without a name the system takes the key that it is to look in.
TEST_F(OpenKeyTest, NeverHandsOnAnEmptyName) {
    const std::string name = Path({8, 250});
    const std::string above = Path({8, 200});
    machine.AddKey(User, name + "\\Below");
    registry.DeleteKey(User, name + std::string(600, '\\'), true);
    registry.CreateKey(User, above + std::string(300, '\\') + Path({100}));
    EXPECT_EQ(machine.Journal().ArgumentsOf("RegDeleteKeyA"), Strings{"HKCU\\" + name});
    EXPECT_EQ(machine.Journal().ArgumentsOf("RegCreateKeyA"),
              (Strings{"HKCU\\" + above, "HKCU\\" + above + "\\" + Path({100})}));
}

TEST_F(OpenKeyTest, GoesOnBehindTheCut) {
    std::string longKey = Path({8, 200, 100});
    longKey[208] = '\x83';
    registry.CreateKey(User, longKey);
    EXPECT_EQ(machine.Journal().ArgumentsOf("RegCreateKeyA"),
              (Strings{"HKCU\\aaaaaaaa", "HKCU\\" + longKey}));
}

}  // namespace
}  // namespace velkarix
