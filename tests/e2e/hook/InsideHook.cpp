// Runs inside the program under test and answers what can't be seen from outside: the items of
// its menus, how many windows, menus and icons it has, how much memory, which texts don't fit their
// place, and whether it finds a library that was planted. Sets colours and fonts, answers the
// dialog that asks where to save, and ends the program where it is asked to.
#include <windows.h>

#include <cstdint>
#include <cstdio>
#include <string>

#include "EndAtChange.h"
#include "Inside.h"
#include "MemoryCount.h"
#include "SkipSaveDialog.h"

namespace {

using namespace velkarix::e2e;

HMENU MenuOf(HWND window) {
    char name[16] = "";
    GetClassNameA(window, name, sizeof name);
    if (lstrcmpA(name, PopupMenuClass) != 0) return GetSystemMenu(window, FALSE);
    return reinterpret_cast<HMENU>(SendMessageA(window, MN_GETHMENU, 0, 0));
}

std::string DescribeItem(HWND window, HMENU menu, UINT position) {
    char caption[256] = "";
    MENUITEMINFOA item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_ID | MIIM_FTYPE | MIIM_STATE | MIIM_STRING;
    item.dwTypeData = caption;
    item.cch = sizeof caption;
    GetMenuItemInfoA(menu, position, TRUE, &item);
    RECT area{};
    GetMenuItemRect(window, menu, position, &area);
    char line[512];
    const int length =
        std::snprintf(line, sizeof line, MenuLineFormat "%s\n", item.wID, item.fType, item.fState,
                      area.left, area.top, area.right, area.bottom, caption);
    return {line, static_cast<std::size_t>(length)};
}

std::string DescribeMenu(HWND window) {
    const HMENU menu = MenuOf(window);
    std::string text;
    for (int i = 0; i < GetMenuItemCount(menu); ++i) {
        text += DescribeItem(window, menu, static_cast<UINT>(i));
    }
    return text;
}

bool IsOwnWindow(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process == GetCurrentProcessId();
}

bool IsIcon(HICON icon) {
    ICONINFO parts{};
    if (!GetIconInfo(icon, &parts)) return false;
    DeleteObject(parts.hbmColor);
    DeleteObject(parts.hbmMask);
    return true;
}

// Wine counts no such objects, but takes a handle's lower half for the handle, and gives the
// lowest free one to a new object: so trying the low ones finds all.
std::string CountUserObjects() {
    constexpr std::uintptr_t First = 0x20;
    constexpr std::uintptr_t Last = 0x1000;
    int count = 0;
    for (std::uintptr_t handle = First; handle < Last; handle += 2) {
        const bool used = IsOwnWindow(reinterpret_cast<HWND>(handle)) ||
                          IsMenu(reinterpret_cast<HMENU>(handle)) != FALSE ||
                          IsIcon(reinterpret_cast<HICON>(handle));
        if (used) ++count;
    }
    return std::to_string(count);
}

bool IsLabel(HWND control) {
    char name[16] = "";
    GetClassNameA(control, name, sizeof name);
    const LONG kind = GetWindowLongA(control, GWL_STYLE) & SS_TYPEMASK;
    return lstrcmpiA(name, "Static") == 0 && kind == SS_LEFT;
}

// The size that a control's text has in the control's font; a label breaks it into lines that are
// as wide as itself.
SIZE SizeOfText(HWND control, const char* text) {
    const HDC context = GetDC(control);
    const HGDIOBJ before =
        SelectObject(context, reinterpret_cast<HFONT>(SendMessageA(control, WM_GETFONT, 0, 0)));
    RECT area{};
    GetClientRect(control, &area);
    area.bottom = 0;
    DrawTextA(context, text, -1, &area,
              DT_CALCRECT | (IsLabel(control) ? DT_WORDBREAK | DT_NOPREFIX : DT_SINGLELINE));
    SelectObject(context, before);
    ReleaseDC(control, context);
    return {area.right, area.bottom};
}

// A picture or a box of colour, by the product's names of them: its text is only spoken.
bool IsPicture(HWND control) {
    const auto atom =
        static_cast<ATOM>(reinterpret_cast<std::uintptr_t>(GetPropA(control, "Velkarix.Name")));
    char name[256] = "";
    if (atom != 0) GlobalGetAtomNameA(atom, name, sizeof name);
    return std::string(name).starts_with("pic");
}

// What shows its text: labels, buttons, options, frames.
bool ShowsText(HWND control) {
    char name[16] = "";
    GetClassNameA(control, name, sizeof name);
    return lstrcmpiA(name, "Button") == 0 || IsLabel(control);
}

// Adds a line with the text of a control that isn't wide or high enough for it.
BOOL CALLBACK AddCutText(HWND control, LPARAM lines) {
    char text[512] = "";
    if (!IsWindowVisible(control) || !ShowsText(control) || IsPicture(control)) return TRUE;
    GetWindowTextA(control, text, sizeof text);
    const SIZE needed = SizeOfText(control, text);
    RECT area{};
    GetClientRect(control, &area);
    if (*text != '\0' && (needed.cx > area.right || needed.cy > area.bottom)) {
        *reinterpret_cast<std::string*>(lines) += std::string(text) + "\n";
    }
    return TRUE;
}

std::string CutTexts(HWND window) {
    std::string lines;
    EnumChildWindows(window, AddCutText, reinterpret_cast<LPARAM>(&lines));
    return lines;
}

// Wine tells other processes neither of colours nor of fonts that are set while they run.
std::string SetColour(WPARAM number) {
    const int index = static_cast<int>(number >> 24);
    const COLORREF colour = number & 0xFFFFFF;
    const DWORD before = GetSysColor(index);
    SetSysColors(1, &index, &colour);
    return std::to_string(before);
}

std::string SetFont(WPARAM height) {
    NONCLIENTMETRICSA metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    const LONG before = -metrics.lfMessageFont.lfHeight;
    metrics.lfMessageFont.lfHeight = -static_cast<LONG>(height);
    SystemParametersInfoA(SPI_SETNONCLIENTMETRICS, sizeof metrics, &metrics,
                          SPIF_UPDATEINIFILE | SPIF_SENDCHANGE);
    return std::to_string(before);
}

void Answer(const std::string& text) {
    const HANDLE mapping = OpenFileMappingA(FILE_MAP_WRITE, FALSE, AnswerMemoryName);
    if (mapping == nullptr) return;
    if (void* memory = MapViewOfFile(mapping, FILE_MAP_WRITE, 0, 0, AnswerMemorySize)) {
        lstrcpynA(static_cast<char*>(memory), text.c_str(), AnswerMemorySize);
        UnmapViewOfFile(memory);
    }
    CloseHandle(mapping);
}

}  // namespace

extern "C" __declspec(dllexport) LRESULT CALLBACK
    InsideHookProcedure(int code, WPARAM wParam, LPARAM lParam) {
    static const UINT readMenu = RegisterWindowMessageA(ReadMenuQuestion);
    static const UINT countUserObjects = RegisterWindowMessageA(CountUserObjectsQuestion);
    static const UINT cutTexts = RegisterWindowMessageA(CutTextsQuestion);
    static const UINT setColour = RegisterWindowMessageA(SetColourQuestion);
    static const UINT setFont = RegisterWindowMessageA(SetFontQuestion);
    static const UINT endAtChange = RegisterWindowMessageA(EndAtChangeQuestion);
    static const UINT countMemory = RegisterWindowMessageA(CountMemoryQuestion);
    static const UINT skipSaveDialog = RegisterWindowMessageA(SkipSaveDialogQuestion);
    static const UINT loadPlanted = RegisterWindowMessageA(LoadPlantedQuestion);
    if (code == HC_ACTION) {
        const auto* sent = reinterpret_cast<const CWPSTRUCT*>(lParam);
        if (sent->message == readMenu) Answer(DescribeMenu(sent->hwnd));
        if (sent->message == countUserObjects) Answer(CountUserObjects());
        if (sent->message == cutTexts) Answer(CutTexts(sent->hwnd));
        if (sent->message == countMemory) Answer(CountMemory());
        if (sent->message == skipSaveDialog) Answer(SkipSaveDialog() ? "ready" : "");
        if (sent->message == loadPlanted) {
            Answer(LoadLibraryA(PlantedName) != nullptr ? IsLoaded : IsNotFound);
        }
        if (sent->message == setColour) Answer(SetColour(sent->wParam));
        if (sent->message == setFont) Answer(SetFont(sent->wParam));
        if (sent->message == endAtChange) {
            Answer(EndAtChange(static_cast<int>(sent->wParam)) ? "ready" : "");
        }
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}
