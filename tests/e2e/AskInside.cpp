#include "AskInside.h"

namespace velkarix::e2e {

namespace {

// The hook library in one thread of the program, and the memory that it answers to.
class InsideHook {
  public:
    explicit InsideHook(DWORD thread) : library_(LoadLibraryA("velkarix_hook.dll")) {
        const auto procedure =
            reinterpret_cast<HOOKPROC>(reinterpret_cast<void*>(GetProcAddress(library_, Entry)));
        mapping_ = CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0,
                                      AnswerMemorySize, AnswerMemoryName);
        memory_ = static_cast<const char*>(
            MapViewOfFile(mapping_, FILE_MAP_READ, 0, 0, AnswerMemorySize));
        if (procedure != nullptr) {
            hook_ = SetWindowsHookExA(WH_CALLWNDPROC, procedure, library_, thread);
        }
    }
    ~InsideHook() {
        if (hook_ != nullptr) UnhookWindowsHookEx(hook_);
        if (memory_ != nullptr) UnmapViewOfFile(memory_);
        if (mapping_ != nullptr) CloseHandle(mapping_);
        if (library_ != nullptr) FreeLibrary(library_);
    }
    InsideHook(const InsideHook&) = delete;
    InsideHook& operator=(const InsideHook&) = delete;

    std::string Ask(const Window& window, const char* question, int number) const {
        if (hook_ == nullptr || memory_ == nullptr) return "";
        window.Send(RegisterWindowMessageA(question), static_cast<WPARAM>(number));
        return memory_;
    }

  private:
    // The decorated name that the library exports.
    static constexpr const char* Entry = "InsideHookProcedure@12";

    HMODULE library_;
    HANDLE mapping_ = nullptr;
    const char* memory_ = nullptr;
    HHOOK hook_ = nullptr;
};

}  // namespace

std::string AskInside(const Window& window, const char* question, int number) {
    return InsideHook(window.Thread()).Ask(window, question, number);
}

}  // namespace velkarix::e2e
