// Stands in for the uninstallers of the sample applications: writes down how it was started, and
// removes nothing.
#include "Record.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    return RecordStart() ? 0 : 1;
}
