// What stands on a machine before a command, to find what is lost behind it: each key and value
// must stand where it was, in its twin place, or in a file that was kept of it; each shortcut and
// program somewhere.
#pragma once

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "registry/RawValue.h"
#include "tests/machine/MemoryMachine.h"

namespace velkarix {

class StandingItems {
  public:
    explicit StandingItems(const MemoryMachine& machine);

    // One of the things that stood there and of which nothing is left by what stands there now;
    // empty when there is none. Behind a deletion a kept file is enough, behind anything else
    // something of that name must stand as well. Settings aren't looked at: commands write them
    // over.
    std::string FindLost(const StandingItems& now, bool wasDeletion) const;

  private:
    // A key's path without case, with its hive, and a value's name; of the key itself, a name that
    // no value has.
    using Place = std::pair<std::string, std::string>;
    using Values = std::map<Place, RawValue>;

    static void Collect(const MemoryHives& hives, Hive hive, const std::string& key,
                        Values& values);
    static Values Collect(const MemoryHives& hives);
    void AddFile(const MemoryEntry& entry);
    void AddKept(const std::string& file);
    bool Has(const Place& place, const RawValue& value) const;
    bool HasKept(const Place& place, const RawValue& value) const;
    bool HasName(const Place& place) const { return values_.contains(place); }

    Values values_;
    std::vector<Values> kept_;
    std::set<std::string> files_;  // shortcuts and programs, by their content
};

}  // namespace velkarix
