// The machine that is looked at: all its capabilities, each behind one interface. Everything above
// works on any Machine and doesn't know which one it is.
#pragma once

#include "platform/Clock.h"
#include "platform/Cryptography.h"
#include "platform/FileSystem.h"
#include "platform/Processes.h"
#include "platform/ProfileFiles.h"
#include "platform/Registry.h"
#include "platform/Shell.h"
#include "platform/Shortcuts.h"
#include "platform/SystemFacts.h"
#include "platform/Token.h"
#include "platform/VersionResources.h"
#include "platform/WindowSystem.h"

namespace velkarix {

struct Machine {
    Registry& registry;
    ProfileFiles& profileFiles;
    VersionResources& versionResources;
    FileSystem& files;
    Clock& clock;
    Processes& processes;
    Token& token;
    Shell& shell;
    Shortcuts& shortcuts;
    SystemFacts& system;
    WindowSystem& windows;
    Cryptography& cryptography;
};

}  // namespace velkarix
