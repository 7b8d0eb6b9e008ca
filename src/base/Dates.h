// The calendar as day numbers.
#pragma once

namespace velkarix {

// Days from 1899-12-30, the automation library's day 0, to a date of the Gregorian calendar.
int DayNumber(int year, int month, int day);

}  // namespace velkarix
