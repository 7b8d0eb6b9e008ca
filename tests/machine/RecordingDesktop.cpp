#include "tests/machine/RecordingDesktop.h"

#include <utility>

namespace velkarix {

void RecordingDesktop::SetApplicationTitle(const std::string& title) {
    applicationTitle = title;
    events.push_back("title " + title);
}

void RecordingDesktop::Create(Form& form, PageHost* host) {
    handles_[&form] = makeWindow ? makeWindow(form) : 0;
    events.push_back("create " + form.Name() + (host != nullptr ? " in " + host->Name() : ""));
}

void RecordingDesktop::Show(Form& form) {
    events.push_back("show " + form.Name());
}

void RecordingDesktop::ShowModal(Form& form, Form& owner) {
    events.push_back("modal " + form.Name() + " above " + owner.Name());
    if (onModal) onModal(form);
}

void RecordingDesktop::Destroy(Form& form) {
    handles_.erase(&form);
    events.push_back("destroy " + form.Name());
}

std::uintptr_t RecordingDesktop::HandleOf(const Form& form) {
    const auto found = handles_.find(&form);
    return found == handles_.end() ? 0 : found->second;
}

void RecordingDesktop::Focus(Control& control) {
    events.push_back("focus " + control.Name());
}

MessageAnswer RecordingDesktop::ShowMessage(const Message& message) {
    messages.push_back(message);
    if (answers.empty()) {
        return message.buttons == MessageButtons::Ok ? MessageAnswer::Ok : MessageAnswer::No;
    }
    const MessageAnswer answer = answers.front();
    answers.pop_front();
    return answer;
}

std::optional<std::string> RecordingDesktop::AskSaveFile(Form&, const SaveRequest& request) {
    saveRequests.push_back(request);
    return std::exchange(nextSaveFile, std::nullopt);
}

std::optional<Color> RecordingDesktop::AskColor(Form&, Color present) {
    colorsShown.push_back(present);
    return std::exchange(nextColor, std::nullopt);
}

std::optional<std::string> RecordingDesktop::PopUp(Form& owner, const Menu& menu) {
    menus.push_back({owner.Name(), menu});
    return std::exchange(nextMenuChoice, std::nullopt);
}

bool RecordingDesktop::SetClipboardText(const std::string& text) {
    if (!clipboardHeld) clipboard = text;
    return !clipboardHeld;
}

void RecordingDesktop::RunEventLoop() {
    events.push_back("loop");
    if (onEventLoop) onEventLoop();
}

void RecordingDesktop::YieldEvents() {
    ++yields;
    if (onYield) onYield();
}

}  // namespace velkarix
