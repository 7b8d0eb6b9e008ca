#include "base/Dates.h"

#include <chrono>

namespace velkarix {

int DayNumber(int year, int month, int day) {
    const std::chrono::sys_days date = std::chrono::year(year) / month / day;
    const std::chrono::sys_days dayZero = std::chrono::year(1899) / 12 / 30;
    return static_cast<int>((date - dayZero).count());
}

}  // namespace velkarix
