// Deleting registry items for good: each is first kept in a registry file, and removed only when
// that file stands. Failures are told to the user here; nothing happens when the item is gone.
#pragma once

#include <string>

#include "shell/Application.h"

namespace velkarix {

// `listName` names the file for the list that the item is in.
void DeleteItemKey(Application& application, const std::string& listName, Hive hive,
                   const std::string& key);
void DeleteItemValue(Application& application, const std::string& listName, Hive hive,
                     const std::string& key, const std::string& valueName);

}  // namespace velkarix
