#include "Program.h"

#include "Wait.h"

namespace velkarix::e2e {

namespace {

constexpr int MessageTextId = 65535;

bool IsSystemDialog(const Window& window) {
    return window.Class() == "#32770" && window.Name().empty();
}

bool IsMessageBox(const Window& window) {
    return IsSystemDialog(window) && GetDlgItem(window.Handle(), MessageTextId) != nullptr;
}

// The one in front; none as soon as the process has ended.
Window FirstWindow(const Process& process, bool (*isWanted)(const Window&)) {
    Window found;
    WaitUntil([&] {
        for (const Window& window : TopWindows(process.Id())) {
            if (!found && isWanted(window)) found = window;
        }
        return found || !process.Running();
    });
    return found;
}

}  // namespace

Program::Program(const std::string& installed, const std::string& folder)
    : process_(installed + "\\Velkarix.exe", folder.empty() ? installed : folder) {
    process_.WaitIdle();
}

Program::~Program() {
    if (!process_.Running()) return;
    // What a failed test left open goes first.
    for (const Window& window : TopWindows(Id())) window.Post(WM_CLOSE);
    WaitForSingleObject(process_.Handle(), 3000);
}

Window Program::Main() const {
    return WaitFor([this] { return TopWindow(Id(), "frmMain"); });
}

Window Program::Control(const std::string& name) const {
    const Window main = Main();
    return WaitFor([&] { return main.Find(name); });
}

Window Program::Dialog(const std::string& name) const {
    return WaitFor([&] { return TopWindow(Id(), name); });
}

Window Program::Message() const {
    return FirstWindow(process_, IsMessageBox);
}

Window Program::SystemDialog() const {
    return FirstWindow(process_, IsSystemDialog);
}

std::string Program::Focus() const {
    return FocusOf(Main().Thread()).Name();
}

bool Program::Press(const std::string& name) const {
    const Window button = Control(name);
    if (!button.Visible() || !button.Enabled()) return false;
    DWORD_PTR result = 0;
    return SendMessageTimeoutA(button.Handle(), BM_CLICK, 0, 0, SMTO_NORMAL, Patience, &result) !=
           0;
}

std::optional<DWORD> Program::Close() {
    if (!Main().Post(WM_CLOSE)) return std::nullopt;
    return process_.WaitForExit();
}

std::string MessageText(const Window& message) {
    return Window(GetDlgItem(message.Handle(), MessageTextId)).Text();
}

bool Answer(const Window& message, int button) {
    if (!Window(GetDlgItem(message.Handle(), button)).Click()) return false;
    return WaitUntil([&] { return !message; });
}

}  // namespace velkarix::e2e
