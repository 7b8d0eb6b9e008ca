// What tests of the startup page begin with: the page on view, and registry and startup folders
// that are as before afterwards, whatever the test does to them.
#pragma once

#include <map>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "ProgramTest.h"
#include "RegistryTree.h"
#include "StartupItems.h"
#include "TreeWindow.h"

namespace velkarix::e2e {

// All that the page may change.
struct StartupState {
    std::map<std::pair<HKEY, std::string>, std::optional<RegistryTree>> keys;
    std::map<std::string, std::string> files;  // the bytes of each by its path
    friend bool operator==(const StartupState&, const StartupState&) = default;
};
std::ostream& operator<<(std::ostream& stream, const StartupState& state);

class StartupTest : public ProgramTest {
  protected:
    StartupTest();
    ~StartupTest() override;

    // Starts the program and enters the page.
    void OpenStartup();
    ListWindow Items() { return Running().List("lstvStartup"); }
    TreeWindow Places() { return TreeWindow(Running().Control("tvwStartup")); }
    std::string Caption() { return Running().Control("fmStartup").Text(); }
    // Clicks on a node of the tree and waits until the list shows it.
    void ShowNode(const StartupNode& node);

    // The place of the item's row in that state; a failure of the test when there is none.
    int RowOfItem(const StartupItem& item, bool enabled);
    bool IsListed(const StartupItem& item, bool enabled);
    void SelectItem(const StartupItem& item, bool enabled);
    void TickItem(const StartupItem& item, bool enabled);

    // What there is of an item in its live or held place: the value's type and data, or the
    // shortcut's bytes. Nothing when it isn't there.
    std::optional<RegistryValue> ReadItem(const StartupItem& item, bool enabled) const;
    // What somebody else may do meanwhile.
    void WriteItem(const StartupItem& item, bool enabled, const RegistryValue& content) const;
    void RemoveItem(const StartupItem& item, bool enabled) const;

    StartupState ReadState() const;
    // As it was when the test began.
    const StartupState& StateBefore() const { return before_; }
    // Leaves nothing that is started at logon, and nothing that is disabled.
    void EmptyAllPlaces() const { Restore({}); }
    // The names of the files that the program has kept.
    std::vector<std::string> BackupFiles() const;

  private:
    std::optional<int> FindItem(const StartupItem& item, bool enabled);
    std::string FileOf(const StartupItem& item, bool enabled) const;
    // The folders of shortcuts, live and held.
    std::vector<std::string> Folders() const;
    void Restore(const StartupState& state) const;

    StartupState first_;  // before the test added anything
    StartupState before_;
};

// A test that is run for some of the sample items.
class StartupItemTest : public StartupTest, public testing::WithParamInterface<StartupItem> {
  protected:
    const StartupItem& Item() const { return GetParam(); }
};

// The name of such a test.
std::string TitleOfStartupItem(const testing::TestParamInfo<StartupItem>& each);

// A text as a value holds it.
RegistryValue TextValue(const std::string& text, DWORD type = REG_SZ);

}  // namespace velkarix::e2e
