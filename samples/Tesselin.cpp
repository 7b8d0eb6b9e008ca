// Stands in for the editor of the hosts file: writes down how it was started, and edits nothing.
#include "Record.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    return RecordStart() ? 0 : 1;
}
