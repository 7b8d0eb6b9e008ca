// Counts the memory that the program under test has from its heaps.
#pragma once

#include <string>

// "blocks bytes blocks bytes": of the program's own heap, then of all heaps.
std::string CountMemory();
