// Switching items off and on again by moving them between the live place and the holding area, in
// one hive. Whatever fails, and wherever the program may end, the item stands whole in one of the
// two places or in both: the destination is read back and compared before anything is deleted at
// the source. Failures are told to the user here; nothing happens when the item is gone.
#pragma once

#include <string>

#include "shell/Application.h"

namespace velkarix {

// What a move changes on its way (a value's type or bytes), or writes over at its destination, is
// first kept as it was in a registry file that is named for the list; where that fails nothing
// moves.

// Moves a key with all that lies below it. A destination that is there takes it in; one that was
// made for a move that fails is removed again.
void RelocateKey(Application& application, const std::string& listName, Hive hive,
                 const std::string& source, const std::string& destination);

// Removes a key with all that lies below it, and serves events meanwhile. True when the key itself
// is gone.
bool DeleteKeyTree(Application& application, Hive hive, const std::string& key);

// Each moves one value between two keys.

// The value arrives as REG_SZ.
void RelocateValue(Application& application, const std::string& listName, Hive hive,
                   const std::string& source, const std::string& destination,
                   const std::string& valueName);
// A toolbar: REG_SZ, but for the current user REG_BINARY, where a value of less than two bytes only
// marks the toolbar by being there and arrives as one zero byte.
void RelocateToolbarValue(Application& application, const std::string& listName, Hive hive,
                          const std::string& source, const std::string& destination,
                          const std::string& valueName);

}  // namespace velkarix
