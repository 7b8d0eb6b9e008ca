// What every use of the system's objects (COM) needs: the service itself, and pointers that let go.
#pragma once

#include <memory>
#include <optional>

#include "platform/win32/WindowsHeaders.h"

// The header of the objects needs the system's before it.
#include <objbase.h>

namespace velkarix {

// The service for this thread. Objects must be gone before it is.
class ComSession {
  public:
    ComSession();
    // Where somebody has started the service in another mode it serves as well, but isn't ours.
    ~ComSession();
    ComSession(const ComSession&) = delete;
    ComSession& operator=(const ComSession&) = delete;

  private:
    bool isOurs_ = false;
};

struct ReleaseObject {
    void operator()(IUnknown* object) const { object->Release(); }
};

template <typename Interface>
using ComPointer = std::unique_ptr<Interface, ReleaseObject>;

// A new object that lives in this process, as one of its interfaces; null where the system can't
// make one.
void* CreateObject(const CLSID& classId, const IID& interfaceId);

template <typename Interface>
ComPointer<Interface> CreateObject(const CLSID& classId) {
    return ComPointer<Interface>(
        static_cast<Interface*>(CreateObject(classId, __uuidof(Interface))));
}

// The class that the registry has under that name; nothing when it has none.
std::optional<CLSID> ClassNamed(const wchar_t* name);

// Another interface of an object; null when it has no such.
template <typename Interface>
ComPointer<Interface> QueryObject(IUnknown& object) {
    void* other = nullptr;
    if (FAILED(object.QueryInterface(__uuidof(Interface), &other))) return nullptr;
    return ComPointer<Interface>(static_cast<Interface*>(other));
}

}  // namespace velkarix
