#include "shell/DirectorySearch.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/machine/MemoryMachine.h"

namespace velkarix {
namespace {

using Strings = std::vector<std::string>;

class DirectorySearchTest : public testing::Test {
  protected:
    DirectorySearchTest() {
        machine.AddFile("C:\\x\\plain.txt");
        machine.AddFile("C:\\x\\readonly.txt").ReadOnly();
        machine.AddFile("C:\\x\\hidden.txt").Hidden();
        machine.AddFile("C:\\x\\system.txt").With(fileAttribute::System);
        machine.AddFolder("C:\\x\\folder.txt");
    }
    void TearDown() override { EXPECT_EQ(machine.files.OpenSearchCount(), 0u); }

    Strings Names(const std::string& pattern, std::uint32_t kinds) {
        Strings names;
        DirectorySearch search(machine.files, pattern, kinds);
        while (const auto found = search.Next()) names.push_back(found->name);
        EXPECT_FALSE(search.Next());
        return names;
    }

    MemoryMachine machine;
};

TEST_F(DirectorySearchTest, FindsTheKindsThatItIsAskedFor) {
    EXPECT_EQ(Names("C:\\x\\*.txt", searchFor::PlainFiles), (Strings{"plain.txt", "readonly.txt"}));
    EXPECT_EQ(Names("C:\\x\\*.txt", searchFor::HiddenFiles),
              (Strings{"hidden.txt", "plain.txt", "readonly.txt"}));
    EXPECT_EQ(Names("C:\\x\\*.txt", searchFor::Everything),
              (Strings{"folder.txt", "hidden.txt", "plain.txt", "readonly.txt", "system.txt"}));
}

TEST_F(DirectorySearchTest, FindsNothingWhereNothingFits) {
    EXPECT_EQ(Names("C:\\x\\*.exe", searchFor::Everything), Strings());
    EXPECT_EQ(Names("C:\\nowhere\\*", searchFor::Everything), Strings());
    EXPECT_EQ(machine.Journal().CountOf("FindClose"), 0u);
}

TEST_F(DirectorySearchTest, IsClosedAlsoWhenItIsLeftHalfWay) {
    {
        DirectorySearch search(machine.files, "C:\\x\\*", searchFor::Everything);
        EXPECT_TRUE(search.Next());
        EXPECT_EQ(machine.files.OpenSearchCount(), 1u);
    }
    EXPECT_EQ(machine.files.OpenSearchCount(), 0u);
    EXPECT_EQ(machine.Journal().CountOf("FindClose"), 1u);
}

TEST_F(DirectorySearchTest, FindEntryGivesTheOneEntryOfAPath) {
    const auto found = FindEntry(machine.files, "C:\\x\\PLAIN.TXT", searchFor::PlainFiles);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->name, "plain.txt");
    EXPECT_FALSE(FindEntry(machine.files, "C:\\x\\folder.txt", searchFor::HiddenFiles));
    EXPECT_TRUE(FindEntry(machine.files, "C:\\x\\folder.txt", searchFor::Everything));
}

}  // namespace
}  // namespace velkarix
