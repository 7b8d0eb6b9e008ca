// What tests of the browser page begin with: the page on view, and a registry that is as before
// afterwards, whatever the test does to it.
#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "BrowserItems.h"
#include "ProgramTest.h"
#include "RegistryTree.h"

namespace velkarix::e2e {

// A place of the registry with what is there; nothing when there is no such key.
struct BrowserPlace {
    RegistryPlace place;
    std::optional<RegistryTree> tree;
    friend bool operator==(const BrowserPlace& a, const BrowserPlace& b) {
        return a.place.hive == b.place.hive && a.place.path == b.place.path && a.tree == b.tree;
    }
};
std::ostream& operator<<(std::ostream& stream, const BrowserPlace& place);

class BrowserTest : public ProgramTest {
  protected:
    ~BrowserTest() override;

    // Starts the program and enters the page.
    void OpenBrowser();
    // The page's list, in the view that shows it.
    ListWindow Show(const BrowserList& view);
    // The place of the item's row in that state; a failure of the test when there is none.
    int RowOfItem(const SampleItem& item, bool enabled);
    bool IsListed(const SampleItem& item, bool enabled);
    using ProgramTest::SelectRow;
    void SelectItem(const SampleItem& item, bool enabled);
    void TickItem(const SampleItem& item, bool enabled);

    // The names of the registry files that the program has made.
    std::vector<std::string> RegistryFiles() const;

    // All that the page may change, as it is now and as it was when the test began.
    static std::vector<BrowserPlace> ReadPlaces();
    const std::vector<BrowserPlace>& PlacesBefore() const { return before_; }

  private:
    std::optional<int> FindItem(const SampleItem& item, bool enabled);

    std::vector<BrowserPlace> before_ = ReadPlaces();
};

// A test that is run for each of the sample items.
class BrowserItemTest : public BrowserTest, public testing::WithParamInterface<SampleItem> {
  protected:
    const SampleItem& Item() const { return GetParam(); }
};

// The name of such a test.
std::string TitleOf(const testing::TestParamInfo<SampleItem>& each);

}  // namespace velkarix::e2e
