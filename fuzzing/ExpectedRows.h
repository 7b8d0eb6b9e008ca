// The rows that the pages are to show of what stands in the registry, by a second reader of it.
#pragma once

#include <set>
#include <string>

#include "forms/ListView.h"
#include "fuzzing/PageLists.h"
#include "platform/Registry.h"
#include "shell/Application.h"
#include "tests/machine/MemoryHives.h"

namespace velkarix {

// Each row as one text.
using RowTexts = std::multiset<std::string>;

struct ExpectedRows {
    RowTexts shown;     // must be there
    RowTexts possible;  // may be there as well, and nothing else

    // One of the rows that are missing, or that nothing stands for; empty when there is none.
    std::string FindDifference(const RowTexts& rows) const;
};

// Rows by item, state and, where the list has it, scope.
ExpectedRows ExpectItems(const Application& application, const MemoryHives& hives,
                         const PageList& list);
RowTexts ItemsShown(ListView& list);
// By the value's name, state and key. Rows of shortcuts aren't among them.
ExpectedRows ExpectRuns(const Application& application, const MemoryHives& hives);
RowTexts RunsShown(ListView& list);
// By key and name.
ExpectedRows ExpectInstalled(const MemoryHives& hives);
RowTexts InstalledShown(ListView& list);

}  // namespace velkarix
