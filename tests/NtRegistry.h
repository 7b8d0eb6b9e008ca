// The native system's own way into the registry, whose names are counted: the only one that makes
// names with a NUL in them.
#pragma once

#include <windows.h>
#include <winternl.h>

#include <cstdint>
#include <string>
#include <vector>

namespace velkarix {

class NtRegistry {
  public:
    // The keys that it made go with it, or before.
    ~NtRegistry() { Clear(); }
    void Clear() {
        while (!keys_.empty()) {
            Call<NTSTATUS(NTAPI*)(HANDLE)>("NtDeleteKey")(keys_.back());
            CloseHandle(keys_.back());
            keys_.pop_back();
        }
    }

    // A key of that name below an open one; null where there is none to be had.
    HKEY MakeKey(HKEY parent, const std::u16string& name) {
        UNICODE_STRING counted = Counted(name);
        OBJECT_ATTRIBUTES attributes{};
        attributes.Length = sizeof(attributes);
        attributes.RootDirectory = parent;
        attributes.ObjectName = &counted;
        attributes.Attributes = OBJ_CASE_INSENSITIVE;
        HANDLE key = nullptr;
        using NtCreateKey = NTSTATUS(NTAPI*)(HANDLE*, ACCESS_MASK, OBJECT_ATTRIBUTES*, ULONG,
                                             UNICODE_STRING*, ULONG, ULONG*);
        if (Call<NtCreateKey>("NtCreateKey")(&key, KEY_ALL_ACCESS, &attributes, 0, nullptr, 0,
                                             nullptr) < 0) {
            return nullptr;
        }
        keys_.push_back(key);
        return static_cast<HKEY>(key);
    }

    // False where it can't be stored.
    static bool SetValue(HKEY key, const std::u16string& name, std::uint32_t type,
                         std::vector<std::uint8_t> data) {
        UNICODE_STRING counted = Counted(name);
        using NtSetValueKey = NTSTATUS(NTAPI*)(HANDLE, UNICODE_STRING*, ULONG, ULONG, void*, ULONG);
        return Call<NtSetValueKey>("NtSetValueKey")(key, &counted, 0, type, data.data(),
                                                    static_cast<ULONG>(data.size())) >= 0;
    }
    static void DeleteValue(HKEY key, const std::u16string& name) {
        UNICODE_STRING counted = Counted(name);
        using NtDeleteValueKey = NTSTATUS(NTAPI*)(HANDLE, UNICODE_STRING*);
        Call<NtDeleteValueKey>("NtDeleteValueKey")(key, &counted);
    }

  private:
    template <typename Function>
    static Function Call(const char* name) {
        void* address =
            reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("ntdll.dll"), name));
        return reinterpret_cast<Function>(address);
    }
    static UNICODE_STRING Counted(const std::u16string& name) {
        UNICODE_STRING counted{};
        counted.Length = static_cast<USHORT>(2 * name.size());
        counted.MaximumLength = counted.Length;
        counted.Buffer = reinterpret_cast<PWSTR>(const_cast<char16_t*>(name.data()));
        return counted;
    }

    std::vector<HANDLE> keys_;
};

}  // namespace velkarix
