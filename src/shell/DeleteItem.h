// Deleting registry items for good: each is first kept in a registry file, and removed only when
// that file stands. Failures are told to the user here; nothing happens when the item is gone.
#pragma once

#include <string>

#include "shell/Application.h"

namespace velkarix {

// Asks the user whether the item with that text is to go.
bool ConfirmDelete(Application& application, const std::string& text);

// `listName` names the file for the list that the item is in.
void DeleteItemKey(Application& application, const std::string& listName, Hive hive,
                   const std::string& key);
void DeleteItemValue(Application& application, const std::string& listName, Hive hive,
                     const std::string& key, const std::string& valueName);

}  // namespace velkarix
