#include "tests/machine/CallJournal.h"

#include <algorithm>
#include <utility>

namespace velkarix {
namespace {

bool LetsGo(std::string_view name) {
    return name == "RegCloseKey" || name == "CloseFile" || name == "CloseHandle" ||
           name == "CloseToken" || name == "FindClose" || name == "AdjustTokenPrivileges";
}

}  // namespace

ErrorCode CallJournal::Enter(std::string_view name, std::string arguments, bool forWriting) {
    const std::size_t number = calls_.size();
    if (number >= firstUnreached_ && !LetsGo(name)) {
        throw ProcessEnded{};
    }
    calls_.push_back({std::string(name), std::move(arguments), forWriting});
    if (action_ && number == actionCall_) {
        std::exchange(action_, nullptr)();
    }
    if (number >= firstFailing_ && number - firstFailing_ < failing_ &&
        (!onlyTheSame_ || calls_[number] == calls_[firstFailing_])) {
        return numberedFailure_;
    }
    const auto next = nextFailures_.find(name);
    if (next != nextFailures_.end()) {
        const ErrorCode error = next->second.front();
        next->second.pop_front();
        if (next->second.empty()) {
            nextFailures_.erase(next);
        }
        return error;
    }
    const auto lasting = lastingFailures_.find(name);
    return lasting == lastingFailures_.end() ? error::Success : lasting->second;
}

void CallJournal::FailCalls(std::size_t number, std::size_t count, ErrorCode error) {
    firstFailing_ = number;
    failing_ = count;
    onlyTheSame_ = true;
    numberedFailure_ = error;
}

void CallJournal::OnCall(std::size_t number, std::function<void()> action) {
    actionCall_ = number;
    action_ = std::move(action);
}

void CallJournal::FailNext(const std::string& name, ErrorCode error) {
    nextFailures_[name].push_back(error);
}

void CallJournal::FailAlways(const std::string& name, ErrorCode error) {
    lastingFailures_[name] = error;
}

std::vector<std::string> CallJournal::Names() const {
    std::vector<std::string> names;
    for (const Call& call : calls_) {
        names.push_back(call.name);
    }
    return names;
}

std::vector<std::string> CallJournal::ArgumentsOf(std::string_view name) const {
    std::vector<std::string> arguments;
    for (const Call& call : calls_) {
        if (call.name == name) {
            arguments.push_back(call.arguments);
        }
    }
    return arguments;
}

std::size_t CallJournal::CountOf(std::string_view name) const {
    return static_cast<std::size_t>(std::count_if(
        calls_.begin(), calls_.end(), [&](const Call& call) { return call.name == name; }));
}

}  // namespace velkarix
