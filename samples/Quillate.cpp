// Stands in for the program that repairs the Winsock chain: writes down how it was started, and
// repairs nothing.
#include "Record.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    return RecordStart() ? 0 : 1;
}
