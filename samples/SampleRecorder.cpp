// Stands in for the web browser and for the viewer of documents: writes down what it was asked to
// open.
#include "Record.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    return RecordStart() ? 0 : 1;
}
