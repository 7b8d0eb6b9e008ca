// Stands in for the update program: writes down how it was started, and updates nothing.
#include "Record.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    return RecordStart() ? 0 : 1;
}
