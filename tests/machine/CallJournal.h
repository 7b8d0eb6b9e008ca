// What the machine in memory was asked, in order, and which of its calls are to fail. All parts
// of one machine share one journal.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Errors.h"

namespace velkarix {

struct Call {
    std::string name;         // as the interface calls it: "RegSetValueExA"
    std::string arguments;    // what it was about: "HKCU\\Software\\Example, Name"
    bool forWriting = false;  // it opens a file that it may make, empty or write

    friend bool operator==(const Call& a, const Call& b) {
        return a.name == b.name && a.arguments == b.arguments;
    }
};

// What ends the code under test where its process is to end.
struct ProcessEnded {};

class CallJournal {
  public:
    // Every faked call begins with this: it writes the call down and gives the error that it must
    // fail with; Success to go on.
    ErrorCode Enter(std::string_view name, std::string arguments = {}, bool forWriting = false);

    // The next call of this name fails with `error`; asked twice, the next two do.
    void FailNext(const std::string& name, ErrorCode error = error::AccessDenied);
    // Every call of this name fails from now on, until Success is given as `error`.
    void FailAlways(const std::string& name, ErrorCode error = error::AccessDenied);

    // The call of this number, counted from 0 since the last Clear, fails; or all from there on.
    void FailCall(std::size_t number, ErrorCode error, bool allFromThereOn = false) {
        firstFailing_ = number;
        failing_ = allFromThereOn ? SIZE_MAX - number : 1;
        onlyTheSame_ = false;
        numberedFailure_ = error;
    }
    // So many in a row; of another kind than the first one, or about something else, none.
    void FailCalls(std::size_t number, std::size_t count, ErrorCode error);

    // What others do to the machine meanwhile: `action` runs once, right before the call of this
    // number, counted from 0 since the last Clear, looks at anything.
    void OnCall(std::size_t number, std::function<void()> action);

    // The process ends at the call of this number: it throws ProcessEnded and does nothing. Letting
    // go of a handle or a privilege is no such call: it changes nothing that outlives the process,
    // and happens while the stack is left.
    void EndAtCall(std::size_t number) { firstUnreached_ = number; }

    const std::vector<Call>& Calls() const { return calls_; }
    // The names alone, in order; handy to assert an order of calls.
    std::vector<std::string> Names() const;
    // The arguments of each call of this name, in order.
    std::vector<std::string> ArgumentsOf(std::string_view name) const;
    std::size_t CountOf(std::string_view name) const;
    // Forgets the calls; what was arranged to fail stays arranged.
    void Clear() { calls_.clear(); }

  private:
    std::vector<Call> calls_;
    std::map<std::string, std::deque<ErrorCode>, std::less<>> nextFailures_;
    std::map<std::string, ErrorCode, std::less<>> lastingFailures_;
    std::size_t firstFailing_ = SIZE_MAX;
    std::size_t failing_ = 0;  // how many
    bool onlyTheSame_ = false;
    std::size_t firstUnreached_ = SIZE_MAX;
    ErrorCode numberedFailure_ = error::Success;
    std::size_t actionCall_ = 0;
    std::function<void()> action_;
};

}  // namespace velkarix
