// The machine that the program runs on: every capability by the system's own calls.
#pragma once

#include "platform/Machine.h"
#include "platform/win32/Win32Clock.h"
#include "platform/win32/Win32Cryptography.h"
#include "platform/win32/Win32FileSystem.h"
#include "platform/win32/Win32Processes.h"
#include "platform/win32/Win32ProfileFiles.h"
#include "platform/win32/Win32Registry.h"
#include "platform/win32/Win32Shell.h"
#include "platform/win32/Win32Shortcuts.h"
#include "platform/win32/Win32SystemFacts.h"
#include "platform/win32/Win32Token.h"
#include "platform/win32/Win32VersionResources.h"
#include "platform/win32/Win32WindowSystem.h"

namespace velkarix {

class Win32Machine {
  public:
    // The parts live as long as this object.
    Machine Parts();

  private:
    Win32Registry registry_;
    Win32ProfileFiles profileFiles_;
    Win32VersionResources versionResources_;
    Win32FileSystem files_;
    Win32Clock clock_;
    Win32Processes processes_;
    Win32Token token_;
    Win32Shell shell_;
    Win32Shortcuts shortcuts_;
    Win32SystemFacts system_;
    Win32WindowSystem windows_;
    Win32Cryptography cryptography_;
};

}  // namespace velkarix
