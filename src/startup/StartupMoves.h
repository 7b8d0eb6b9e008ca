// Switching startup items off and on: values of the registry, and shortcuts.
#pragma once

#include <string>

#include "shell/Application.h"

namespace velkarix {

// What backups of startup items are named for.
inline constexpr const char* StartupBackupName = "Startup";

// Moves one value as text; one that is listed by a name that doesn't lead to it stays. True when it
// arrived and its deletion at the source was asked for; what fails is told to the user.
bool RelocateRunValue(Application& application, Hive hive, const std::string& sourceKey,
                      const std::string& destinationKey, const std::string& valueName);

}  // namespace velkarix
