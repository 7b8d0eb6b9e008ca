// The Windows program: makes the machine and the desktop, and runs Main on them.
#include <windows.h>

#include "DefineForms.h"
#include "forms/win32/Win32Desktop.h"
#include "platform/win32/Win32Machine.h"
#include "shell/Application.h"
#include "shell/modMain.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    velkarix::Win32Machine machine;
    velkarix::Win32Desktop desktop;
    velkarix::Application application(machine.Parts(), desktop);
    velkarix::DefineForms(application);
    velkarix::Main(application);
    return 0;
}
