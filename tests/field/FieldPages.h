// The pages that show what a machine in the field holds, for tests of what odd things of the field
// become on each: a table of their lists, and what a user does with a row of any of them.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/browser/HardItems.h"
#include "tests/machine/TestProgram.h"
#include "tests/startup/StartupPage.h"

namespace velkarix {

// A list of a page, by the names of its controls; null where there is no such button.
struct FieldList {
    const char* page;
    const char* entrance;  // the main window's button
    const char* list;
    const char* disable;
    const char* enable;
    const char* remove;
    const char* report;
    std::size_t enabled;  // the column
};

inline const FieldList StartupRows = {"frmStartup", "cmdStartup", "lstvStartup", "cmdDisable",
                                      "cmdEnable",  "cmdDelete",  "cmdReport",   1};
inline const FieldList InstalledRows = {"frmAddRemove", "cmdAddremove", "lstvAddRemove", nullptr,
                                        nullptr,        "cmdDelete",    "cmdReport",     0};
inline const FieldList ProcessRows = {"frmProcess", "cmdProcess", "lstvProcess", nullptr,
                                      nullptr,      nullptr,      "cmdReport",   0};
inline FieldList BrowserRows(const ListCase& list) {
    return {"frmIE",     "cmdIE",     list.list,   list.disable,
            list.enable, list.remove, list.report, list.enabled};
}

// Where a thing lies in the registry while it is on and while it is off: a value of that name, or
// a key.
struct FieldItem {
    Hive hive;
    std::string live;  // the key that holds it
    std::string held;
    std::string name;
    bool isValue;
    bool asBytes = false;  // a value that moves as bytes and not as text
};

class FieldPages : public testing::Test {
  protected:
    FieldPages();
    void TearDown() override;

    MemoryMachine& Machine() { return program.machine; }
    MemoryRegistry& Registry() { return program.machine.registry; }

    // Enters the page, anew when it was there.
    void Enter(const FieldList& list);
    ListView& View(const FieldList& list) { return program.Get<ListView>(list.page, list.list); }
    bool Click(const FieldList& list, const char* button);
    // All columns of each row, in the shown order.
    std::vector<RowTexts> Rows(const FieldList& list);
    // The first row of that text; null when there is none.
    ListRow* RowOf(const FieldList& list, const std::string& text);
    // What the list's report command writes.
    std::string ReportOf(const FieldList& list);
    RowTexts Messages();

    // One value, or a key with all that is in it, as text; empty when it isn't there.
    std::string Standing(const FieldItem& item, bool live);
    // Whether merging one of the kept registry files brings this back where the item is live.
    bool IsKept(const FieldItem& item, const std::string& standing);

    // The user disables the row of the item, enables it and deletes it: at each step it lies whole
    // in one place, and what a step changed or took away is kept as it was.
    void GoOffAndOnAndAway(const FieldList& list, const FieldItem& item, const std::string& text);
    // The item leaves its live place when the user disables and deletes rows of that text, of which
    // another item may have one too.
    void GoAway(const FieldList& list, const FieldItem& item, const std::string& text);
    // Neither disabling nor deleting the row changes anything in the registry.
    void ExpectUnmoved(const FieldList& list, const std::string& text);

    TestProgram program;

  private:
    void PassASecond();
    void Give(const FieldList& list, const char* command, ListRow* row);
    std::string StateOfRegistry() { return StateOf(program.machine); }
    int seconds_ = 0;
};

}  // namespace velkarix
