#include "NativeForms.h"

namespace velkarix {
namespace {

class NativeClipboardTest : public NativeFormsTest {
  protected:
    // The text on the clipboard; "(none)" when there is none.
    static std::string Text() {
        std::string text = "(none)";
        OpenClipboard(nullptr);
        if (const HANDLE data = GetClipboardData(CF_TEXT)) {
            text = static_cast<const char*>(GlobalLock(data));
            GlobalUnlock(data);
        }
        CloseClipboard();
        return text;
    }

    struct Holder {
        HANDLE opened;
        HANDLE release;
    };
    static DWORD WINAPI HoldOpen(void* parameter) {
        const auto& holder = *static_cast<Holder*>(parameter);
        OpenClipboard(nullptr);
        SetEvent(holder.opened);
        WaitForSingleObject(holder.release, 10000);
        CloseClipboard();
        return 0;
    }
    static DWORD WINAPI ReleaseSoon(void* release) {
        Sleep(50);
        SetEvent(static_cast<HANDLE>(release));
        return 0;
    }
};

TEST_F(NativeClipboardTest, TextTakesThePlaceOfWhatWasThere) {
    EXPECT_TRUE(desktop.SetClipboardText("first"));
    EXPECT_TRUE(desktop.SetClipboardText("a\tb\r\n\xE4"));
    EXPECT_EQ(Text(), "a\tb\r\n\xE4");
}

TEST_F(NativeClipboardTest, LargeTextIsPutWhole) {
    std::string text;
    text.append(3'000'000, 'x');
    EXPECT_TRUE(desktop.SetClipboardText(text));
    EXPECT_EQ(Text().size(), text.size());
}

TEST_F(NativeClipboardTest, WhatAnotherKeepsOpenIsLeftAsItIs) {
    ASSERT_TRUE(desktop.SetClipboardText("before"));
    Holder holder{CreateEventA(nullptr, TRUE, FALSE, nullptr),
                  CreateEventA(nullptr, TRUE, FALSE, nullptr)};
    const HANDLE thread = CreateThread(nullptr, 0, HoldOpen, &holder, 0, nullptr);
    WaitForSingleObject(holder.opened, 10000);
    EXPECT_FALSE(desktop.SetClipboardText("after"));
    SetEvent(holder.release);
    WaitForSingleObject(thread, 10000);
    EXPECT_EQ(Text(), "before");
    for (const HANDLE handle : {thread, holder.opened, holder.release}) CloseHandle(handle);
}

TEST_F(NativeClipboardTest, WhatAnotherKeepsOpenForAMomentIsWaitedFor) {
    Holder holder{CreateEventA(nullptr, TRUE, FALSE, nullptr),
                  CreateEventA(nullptr, TRUE, FALSE, nullptr)};
    const HANDLE thread = CreateThread(nullptr, 0, HoldOpen, &holder, 0, nullptr);
    WaitForSingleObject(holder.opened, 10000);
    const HANDLE timer = CreateThread(nullptr, 0, ReleaseSoon, holder.release, 0, nullptr);
    EXPECT_TRUE(desktop.SetClipboardText("after"));
    EXPECT_EQ(Text(), "after");
    WaitForSingleObject(thread, 10000);
    WaitForSingleObject(timer, 10000);
    for (const HANDLE handle : {thread, timer, holder.opened, holder.release}) CloseHandle(handle);
}

}  // namespace
}  // namespace velkarix
