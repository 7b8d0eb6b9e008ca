// A harmless program that lies on the search path.
#include "Idle.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    return StayIdle();
}
