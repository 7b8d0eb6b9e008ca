// A scan of which a call fails, or whose items go while it runs.
#include <algorithm>
#include <utility>

#include "tests/browser/ScannedLists.h"

namespace velkarix {
namespace {

class ItemListScanTest : public ScannedListPage {
  protected:
    // Two items with all that their rows can show.
    void PutTwoFullItems() {
        const std::pair<const char*, const char*> items[] = {{ClassA, "One"}, {ClassB, "Two"}};
        for (const auto& [name, word] : items) {
            PutFullItem(name, word);
            AddClass(name, std::string("C:\\") + word + "\\" + word + ".dll",
                     std::string("Describes ") + word)
                .Content(std::string(word) + word)
                .Icon(0, {}, {1, 1, {7}})
                .Created(2003, 5, 7)
                .Version({{"CompanyName", std::string("Company ") + word},
                          {"ProductName", std::string("Product ") + word},
                          {"FileDescription", std::string("File ") + word}});
        }
    }
    void PutFullItem(const std::string& name, const std::string& word) {
        PutLive(name);
        const std::string key = LiveKey(name);
        if (Case().kind == ScanKind::Button) {
            SetValue(Place().hive, key, "ButtonText", "Describes " + word);
            Machine().registry.RemoveValue(Place().hive, key, "Script");
        }
        if (Case().kind == ScanKind::Protocol) {
            SetValue(Place().hive, key, "", "Describes " + word);
        }
    }
    // Takes an item away as the system does when others delete it: what has it open notices.
    void TakeAway(const std::string& name) {
        MemoryRegistry& registry = Machine().registry;
        if (TheCase().values) {
            registry.RemoveValue(Place().hive, Place().live, name);
        } else {
            registry.RemoveKey(Place().hive, LiveKey(name));
        }
        registry.RemoveKey(Hive::ClassesRoot, "CLSID\\" + name);
    }
    // How many calls a refresh makes.
    std::size_t CallsOfARefresh() {
        Machine().Journal().Clear();
        Refresh();
        return Machine().Journal().Calls().size();
    }
    // Each row has its own facts, or nothing in their place.
    void ExpectNoForeignFacts(const std::vector<RowTexts>& complete) {
        for (const RowTexts& row : AllRows()) {
            const auto whole = std::find_if(complete.begin(), complete.end(),
                                            [&](const RowTexts& it) { return it[0] == row[0]; });
            ASSERT_NE(whole, complete.end()) << row[0];
            for (std::size_t column = 0; column < row.size(); ++column) {
                const bool isKnown = row[column].empty() || row[column] == (*whole)[column];
                EXPECT_TRUE(isKnown) << column << ": " << row[column];
            }
        }
    }
    std::size_t OpenHandles() {
        const MemoryMachine& machine = Machine();
        return machine.registry.OpenKeyCount() + machine.files.OpenFileCount() +
               machine.files.OpenSearchCount() + machine.shell.OpenIconCount();
    }
    static bool IsOfClosing(const std::string& call) {
        return call.find("Close") != std::string::npos || call == "DestroyIcon";
    }
};

TEST_P(ItemListScanTest, ShowsNoForeignFactsWhicheverCallFails) {
    PutTwoFullItems();
    Open();
    const std::vector<RowTexts> complete = AllRows();
    ASSERT_EQ(complete.size(), 2u);
    const std::size_t calls = CallsOfARefresh();
    for (std::size_t call = 0; call < calls; ++call) {
        Machine().Journal().Clear();
        Machine().Journal().FailCall(call, error::AccessDenied);
        const std::size_t openBefore = OpenHandles();
        Refresh();
        const std::string failed = Machine().Journal().Calls().at(call).name;
        SCOPED_TRACE(failed + " of number " + std::to_string(call));
        Machine().Journal().FailCall(SIZE_MAX, error::Success);
        ExpectNoForeignFacts(complete);
        EXPECT_EQ(Messages(), RowTexts());
        // Only a handle whose closing fails is left.
        EXPECT_EQ(OpenHandles(), openBefore + (IsOfClosing(failed) ? 1 : 0));
    }
    Refresh();
    EXPECT_EQ(AllRows(), complete);
}

TEST_P(ItemListScanTest, ShowsNoForeignFactsWhenAnItemGoesInTheMiddleOfTheScan) {
    PutTwoFullItems();
    Open();
    const std::vector<RowTexts> complete = AllRows();
    const std::size_t calls = CallsOfARefresh();
    for (const std::string gone : {ClassA, ClassB}) {
        for (std::size_t call = 0; call < calls; ++call) {
            SCOPED_TRACE(gone + " goes before call " + std::to_string(call));
            Machine().Journal().Clear();
            Machine().Journal().OnCall(call, [&] { TakeAway(gone); });
            Refresh();
            ExpectNoForeignFacts(complete);
            EXPECT_EQ(Messages(), RowTexts());
            EXPECT_EQ(OpenHandles(), 0u);
            Refresh();
            EXPECT_EQ(Names(), RowTexts{gone == ClassA ? ClassB : ClassA});
            Machine().registry.RemoveKey(Place().hive, Place().live);
            PutTwoFullItems();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, ItemListScanTest,
                         testing::Values(BHOScan, ToolbarScan, ButtonScan, MenuScan, ProtocolScan,
                                         DomainScan, HookScan),
                         ScanName);

}  // namespace
}  // namespace velkarix
