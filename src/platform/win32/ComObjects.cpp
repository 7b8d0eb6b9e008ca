#include "platform/win32/ComObjects.h"

#include "platform/win32/SystemLibrary.h"

namespace velkarix {
namespace {

constinit SystemLibrary objects{"ole32.dll"};

}  // namespace

ComSession::ComSession() {
    const auto call = objects.Find<decltype(&::CoInitialize)>("CoInitialize");
    isOurs_ = call != nullptr && SUCCEEDED(call(nullptr));
}

ComSession::~ComSession() {
    if (!isOurs_) return;
    if (const auto call = objects.Find<decltype(&::CoUninitialize)>("CoUninitialize")) call();
}

void* CreateObject(const CLSID& classId, const IID& interfaceId) {
    const auto call = objects.Find<decltype(&::CoCreateInstance)>("CoCreateInstance");
    void* object = nullptr;
    if (call == nullptr ||
        FAILED(call(classId, nullptr, CLSCTX_INPROC_SERVER, interfaceId, &object))) {
        return nullptr;
    }
    return object;
}

std::optional<CLSID> ClassNamed(const wchar_t* name) {
    const auto call = objects.Find<decltype(&::CLSIDFromProgID)>("CLSIDFromProgID");
    CLSID classId;
    if (call == nullptr || FAILED(call(name, &classId))) return std::nullopt;
    return classId;
}

}  // namespace velkarix
