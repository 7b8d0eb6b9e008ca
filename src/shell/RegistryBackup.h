// What is taken out of the registry for good is kept first, as a registry file in the backup folder
// beside the program: a double click on it brings the item back.
#pragma once

#include <string>

#include "shell/Application.h"

namespace velkarix {

// Keeps `sections`, as registry/RegistryFile gives them, in the file of this second and of the list
// that they come from; a file that is there already gets them at its end. Success only when the
// file was read back and holds all of it; else the code of what failed. What is in the way stays,
// AlreadyExists where it is no such file.
ErrorCode KeepRegistryFile(Application& application, const std::string& listName,
                           const std::string& sections);

// Keeps `sections`, where `exported` tells that they were written whole. False when they aren't
// kept, once the user was told why; `operation` names what wasn't done then.
bool KeepOrTell(Application& application, const std::string& listName, const char* operation,
                ErrorCode exported, const std::string& sections);

}  // namespace velkarix
