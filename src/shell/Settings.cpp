#include "shell/Settings.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

#include "base/Text.h"

namespace velkarix {
namespace {

constexpr std::uint32_t IniCapacity = 255;
constexpr std::string_view Blanks = " \t";

// Powers of ten up to this one are exact.
constexpr int ExactPower = 22;
constexpr int LargestExponent = 999;
// So that one digit more still fits into 64 bits.
constexpr std::uint64_t LargestMantissa = std::numeric_limits<std::uint64_t>::max() / 10 - 1;

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

double Scaled(double value, int exponent) {
    while (exponent != 0) {
        const int step = std::clamp(exponent, -ExactPower, ExactPower);
        double power = 1;
        for (int i = 0; i < std::abs(step); ++i) power *= 10;
        value = step > 0 ? value * power : value / power;
        exponent -= step;
    }
    return value;
}

// Takes a number off the front of a text, without the system's locale: settings always have a
// point before their fraction.
class NumberReader {
  public:
    explicit NumberReader(std::string_view text) : rest_(text) {}

    std::string_view Rest() const { return rest_; }

    // Nothing when there is no number.
    std::optional<double> Read() {
        const bool isNegative = Take('-');
        if (!isNegative) Take('+');
        bool hasDigits = ReadDigits(0);
        if (Take('.')) hasDigits = ReadDigits(-1) || hasDigits;
        if (!hasDigits) return std::nullopt;
        ReadExponent();
        const double value = mantissa_ == 0 ? 0 : Scaled(static_cast<double>(mantissa_), exponent_);
        return isNegative ? -value : value;
    }

  private:
    bool Take(char c) {
        if (rest_.empty() || rest_.front() != c) return false;
        rest_.remove_prefix(1);
        return true;
    }

    // Digits beyond what a double can hold only move the point.
    bool ReadDigits(int exponentOfEach) {
        bool any = false;
        for (; !rest_.empty() && IsDigit(rest_.front()); rest_.remove_prefix(1), any = true) {
            const bool isKept = mantissa_ <= LargestMantissa;
            if (isKept) mantissa_ = mantissa_ * 10 + static_cast<unsigned>(rest_.front() - '0');
            const int moved = exponent_ + exponentOfEach + (isKept ? 0 : 1);
            exponent_ = std::clamp(moved, -LargestExponent, LargestExponent);
        }
        return any;
    }

    void ReadExponent() {
        const std::string_view start = rest_;
        if (!Take('e') && !Take('E')) return;
        const bool isNegative = Take('-');
        if (!isNegative) Take('+');
        if (rest_.empty() || !IsDigit(rest_.front())) {
            rest_ = start;
            return;
        }
        int exponent = 0;
        for (; !rest_.empty() && IsDigit(rest_.front()); rest_.remove_prefix(1)) {
            exponent = std::min(exponent * 10 + (rest_.front() - '0'), LargestExponent);
        }
        exponent_ += isNegative ? -exponent : exponent;
    }

    std::string_view rest_;
    std::uint64_t mantissa_ = 0;
    int exponent_ = 0;
};

std::string_view WithoutLeadingBlanks(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(Blanks), text.size()));
}

}  // namespace

void Settings::LearnInstallFolder() {
    const std::string program = system_.GetModuleFileNameA();
    if (!program.empty()) {
        installFolder_ = program.substr(0, std::min(program.rfind('\\'), program.size()));
    }
}

std::string Settings::InstallFolder() {
    LearnInstallFolder();
    return installFolder_;
}

std::string Settings::FileOrDefault(const std::string& file) {
    return file.empty() ? InstallFolder() + "\\Settings.ini" : file;
}

std::string Settings::ReadIni(const std::string& section, const std::string& key,
                              const std::string& fallback, const std::string& file) {
    return TrimAtNull(profileFiles_.GetPrivateProfileStringA(section, key, fallback, IniCapacity,
                                                             FileOrDefault(file)));
}

void Settings::WriteIni(const std::string& section, const std::string& key,
                        const std::string& value, const std::string& file) {
    profileFiles_.WritePrivateProfileStringA(section, key, value, FileOrDefault(file));
}

double NumericPrefix(std::string_view text) {
    return NumberReader(WithoutLeadingBlanks(text)).Read().value_or(0);
}

std::int32_t RoundedNumber(std::string_view text) {
    using Limits = std::numeric_limits<std::int32_t>;
    const double number = NumericPrefix(text);
    double rounded = std::floor(number);
    const double fraction = number - rounded;
    if (fraction > 0.5 || (fraction == 0.5 && std::fmod(rounded, 2) != 0)) rounded += 1;
    return static_cast<std::int32_t>(
        std::clamp(rounded, double{Limits::min()}, double{Limits::max()}));
}

std::optional<double> StrictNumber(std::string_view text) {
    NumberReader reader(WithoutLeadingBlanks(text));
    const std::optional<double> number = reader.Read();
    return WithoutLeadingBlanks(reader.Rest()).empty() ? number : std::nullopt;
}

}  // namespace velkarix
