// What a harmless library of the sample machine is: a component that the browser may load, and that
// then makes nothing.
#pragma once

#include <windows.h>

extern "C" __declspec(dllexport) inline HRESULT WINAPI
    DllGetClassObject(REFCLSID, REFIID, void** object) {
    *object = nullptr;
    return CLASS_E_CLASSNOTAVAILABLE;
}
