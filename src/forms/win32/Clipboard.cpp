#include "forms/win32/Clipboard.h"

#include <cstring>
#include <memory>

namespace velkarix {

namespace {

// Programs that watch the clipboard open it for a moment whenever it has changed.
constexpr int Attempts = 10;
constexpr DWORD Pause = 20;  // milliseconds

bool Open(HWND owner) {
    for (int i = 0; i < Attempts; ++i) {
        if (OpenClipboard(owner) != FALSE) return true;
        Sleep(Pause);
    }
    return false;
}

struct MemoryDeleter {
    void operator()(void* memory) const { GlobalFree(memory); }
};
using OwnedMemory = std::unique_ptr<void, MemoryDeleter>;

// Memory as the clipboard wants it; null when there is none.
OwnedMemory Filled(const void* data, std::size_t size) {
    OwnedMemory memory(GlobalAlloc(GMEM_MOVEABLE | GMEM_DDESHARE, size));
    void* const place = memory ? GlobalLock(memory.get()) : nullptr;
    if (place == nullptr) return nullptr;
    std::memcpy(place, data, size);
    GlobalUnlock(memory.get());
    return memory;
}

// The clipboard owns what it has taken.
bool Put(UINT format, OwnedMemory& memory) {
    if (SetClipboardData(format, memory.get()) == nullptr) return false;
    static_cast<void>(memory.release());
    return true;
}

}  // namespace

bool PutOnClipboard(HWND owner, const std::string& text) {
    OwnedMemory bytes = Filled(text.c_str(), text.size() + 1);
    // The text is in the system's code page, whatever language the keyboard has.
    const LCID locale = GetSystemDefaultLCID();
    OwnedMemory language = Filled(&locale, sizeof locale);
    if (!bytes || !language || !Open(owner)) return false;
    const bool put = EmptyClipboard() != FALSE && Put(CF_TEXT, bytes);
    if (put) Put(CF_LOCALE, language);
    CloseClipboard();
    return put;
}

}  // namespace velkarix
