// A harmless program that the sample definition lists call suspicious.
#include "Idle.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    return StayIdle();
}
