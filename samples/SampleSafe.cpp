// A harmless program for the user's own list of safe files.
#include "Idle.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    return StayIdle();
}
