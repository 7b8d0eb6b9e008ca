// The program's settings: INI files beside the program, and how their texts become numbers.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Machine.h"

namespace velkarix {

class Settings {
  public:
    explicit Settings(const Machine& machine)
        : profileFiles_(machine.profileFiles), system_(machine.system) {}

    // The folder that the program runs from, without a backslash at its end; as it was learnt last
    // where the system can't tell it, since files would come to lie in a root folder otherwise.
    std::string InstallFolder();
    // Has the system tell that folder. InstallFolder does so itself; asked early, it is known for
    // all that follows.
    void LearnInstallFolder();

    // An empty `file` is Settings.ini in the InstallFolder, any other is a full path.

    // At most 254 characters of the value; `fallback` when the key is missing.
    std::string ReadIni(const std::string& section, const std::string& key,
                        const std::string& fallback, const std::string& file = {});
    // Makes what is missing. A file that can't be written stays as it is, without a word.
    void WriteIni(const std::string& section, const std::string& key, const std::string& value,
                  const std::string& file = {});

  private:
    std::string FileOrDefault(const std::string& file);

    ProfileFiles& profileFiles_;
    SystemFacts& system_;
    std::string installFolder_;
};

// The number at the start of a text, behind blanks: a sign, digits with a decimal point, an
// exponent. 0 when there is none; what follows the number isn't looked at.
double NumericPrefix(std::string_view text);
// The same, rounded to a whole number, halves to the even one; beyond 32 bits the nearest.
std::int32_t RoundedNumber(std::string_view text);
// The number that the whole text is, but for blanks around it; nothing when it is none.
std::optional<double> StrictNumber(std::string_view text);

}  // namespace velkarix
