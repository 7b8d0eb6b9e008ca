// A machine as a list of places with what is there, so that two of them can be compared place by
// place.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/machine/MemoryMachine.h"

namespace velkarix {

// A place is a key ("hkcu\\software\\"), a value ("hkcu\\software\\, name"), a file or a folder
// ("C:\\a.txt", "C:\\WINDOWS\\"), a process ("process 7") or a file that goes at the next start.
using FlatMachine = std::map<std::string, std::string>;

FlatMachine Flatten(const MemoryMachine& machine);

bool BeginsWithAny(const std::string& place, const std::vector<std::string>& beginnings);
// The first place that differs, with what is in it, of those whose names don't begin with one of
// `apart`; empty when there is none.
std::string FindDifference(const FlatMachine& before, const FlatMachine& now,
                           const std::vector<std::string>& apart);

// "hkcu\\software\\example\\", as places begin.
std::string PlaceOf(Hive hive, const std::string& key);

}  // namespace velkarix
