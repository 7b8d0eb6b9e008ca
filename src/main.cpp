// The Windows program: makes the machine and the desktop, and runs Main on them.
#include <windows.h>

#include "DefineForms.h"
#include "forms/win32/Win32Desktop.h"
#include "platform/win32/ComObjects.h"
#include "platform/win32/SystemLibrary.h"
#include "platform/win32/Win32Machine.h"
#include "shell/Application.h"
#include "shell/modMain.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    velkarix::SearchLibrariesInSystemFolderOnly();
    // A path on an empty drive is a file that isn't there, not a question of the system's.
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
    // The shell may open documents through objects that want it.
    const velkarix::ComSession session;
    velkarix::Win32Machine machine;
    velkarix::Win32Desktop desktop;
    velkarix::Application application(machine.Parts(), desktop);
    velkarix::DefineForms(application);
    velkarix::Main(application);
    return 0;
}
