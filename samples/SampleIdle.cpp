// A harmless program that only runs.
#include "Idle.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    return StayIdle();
}
