// What is known of each call to the machine: whether it changes anything, and what may go wrong at
// it. A call that stands in no row fails the test that meets it.
#pragma once

#include <span>
#include <string>

#include "tests/machine/MemoryMachine.h"

namespace velkarix {

enum class CallEffect {
    Looks,    // nothing is another afterwards
    Own,      // only this process: its windows, its handles and privileges, the time it waits
    Changes,  // the registry, a disk, another process; something starts
};

enum class TroubleKind {
    None,
    Fails,       // with an error
    Grows,       // there is more data than the caller has room for, and more the next time
    Fills,       // the disk takes half of what is written, and nothing afterwards
    EndsWithin,  // the process ends when half is written
    CutsShort,   // reports success, and what was written lacks its end
    Gone,        // somebody else has just taken away what the call is about
    GoneAndEnds,
    FailsFromThere,
    Ends,  // the process ends before the call
};

struct Trouble {
    TroubleKind kind = TroubleKind::None;
    ErrorCode error = error::Success;  // of Fails
    int times = 1;                     // of Grows: calls in a row
};

struct CallKind {
    const char* name;
    CallEffect effect;
    std::span<const Trouble> troubles;  // at this one call
};

const CallKind& KindOf(const Call& call);
// Of a file that is opened the use decides.
bool Changes(const Call& call);

// Has the trouble happen at the call of that number, which is `call`.
void Arrange(MemoryMachine& machine, const Trouble& trouble, std::size_t number, const Call& call);
// Nothing is in trouble any more.
void EndTrouble(MemoryMachine& machine);
// In words, for messages.
std::string Describe(const Trouble& trouble);

}  // namespace velkarix
