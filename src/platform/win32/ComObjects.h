// What every use of the system's objects (COM) needs: the service itself, and pointers that let go.
#pragma once

#include <memory>

#include "platform/win32/WindowsHeaders.h"

// The header of the objects needs the system's before it.
#include <objbase.h>

namespace velkarix {

// The service for this thread. Objects must be gone before it is.
class ComSession {
  public:
    ComSession() : isOurs_(SUCCEEDED(::CoInitialize(nullptr))) {}
    // Where somebody has started the service in another mode it serves as well, but isn't ours.
    ~ComSession() {
        if (isOurs_) ::CoUninitialize();
    }
    ComSession(const ComSession&) = delete;
    ComSession& operator=(const ComSession&) = delete;

  private:
    bool isOurs_;
};

struct ReleaseObject {
    void operator()(IUnknown* object) const { object->Release(); }
};

template <typename Interface>
using ComPointer = std::unique_ptr<Interface, ReleaseObject>;

// A new object that lives in this process; null where the system can't make one.
template <typename Interface>
ComPointer<Interface> CreateObject(const CLSID& classId) {
    void* object = nullptr;
    if (FAILED(::CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, __uuidof(Interface),
                                  &object))) {
        return nullptr;
    }
    return ComPointer<Interface>(static_cast<Interface*>(object));
}

// Another interface of an object; null when it has no such.
template <typename Interface>
ComPointer<Interface> QueryObject(IUnknown& object) {
    void* other = nullptr;
    if (FAILED(object.QueryInterface(__uuidof(Interface), &other))) return nullptr;
    return ComPointer<Interface>(static_cast<Interface*>(other));
}

}  // namespace velkarix
