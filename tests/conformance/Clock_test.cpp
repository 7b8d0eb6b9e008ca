#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "tests/conformance/Home.h"

namespace velkarix {

class ClockConformance : public Conformance {
  protected:
    Clock& clock_ = machine_.clock;
};

INSTANTIATE_TEST_SUITE_P(Home, ClockConformance, testing::ValuesIn(FamiliesOfHome()), NameOfFamily);

TEST_P(ClockConformance, FileTimesBeginIn1601) {
    EXPECT_EQ(clock_.FileTimeToSystemTime(0), (SystemTime{1601, 1, 1, 1, 0, 0, 0, 0}));
}

TEST_P(ClockConformance, AFileTimeIsADateAndATimeOfDay) {
    // The first second of 1970, and a leap day with all fields in use.
    EXPECT_EQ(clock_.FileTimeToSystemTime(116444736000000000),
              (SystemTime{1970, 1, 4, 1, 0, 0, 0, 0}));
    EXPECT_EQ(clock_.FileTimeToSystemTime(127225727078900000),
              (SystemTime{2004, 2, 0, 29, 23, 58, 27, 890}));
}

TEST_P(ClockConformance, TimesWithTheTopBitAreOutOfRange) {
    EXPECT_EQ(clock_.FileTimeToSystemTime(0x8000000000000000), std::nullopt);
    EXPECT_EQ(clock_.FileTimeToSystemTime(0xFFFFFFFFFFFFFFFF), std::nullopt);
}

TEST_P(ClockConformance, LocalTimeIsWholeMinutesAwayFromUtc) {
    constexpr FileTime time = 127225727078900000;
    constexpr std::int64_t minute = 600'000'000;
    const auto local = clock_.FileTimeToLocalFileTime(time);
    ASSERT_TRUE(local.has_value());
    const auto distance = static_cast<std::int64_t>(*local - time);
    EXPECT_EQ(distance % minute, 0);
    EXPECT_LE(std::abs(distance), 14 * 60 * minute);
}

TEST_P(ClockConformance, ThePresentIsAFullTime) {
    const SystemTime now = clock_.GetLocalTime();
    EXPECT_GE(now.year, 2004);
    EXPECT_TRUE(now.month >= 1 && now.month <= 12);
    EXPECT_TRUE(now.day >= 1 && now.day <= 31);
    EXPECT_TRUE(now.dayOfWeek >= 0 && now.dayOfWeek <= 6);
}

TEST_P(ClockConformance, DatesAreReadAsMonthDayAndYear) {
    EXPECT_EQ(clock_.VarDateFromStr("12/30/1899"), 0.0);
    EXPECT_EQ(clock_.VarDateFromStr("6/1/2004"), 38139.0);
    EXPECT_EQ(clock_.VarDateFromStr("06/01/2004"), 38139.0);
    EXPECT_EQ(clock_.VarDateFromStr("2004-06-01"), 38139.0);
}

TEST_P(ClockConformance, TwoDigitsMeanAYearOfTheLastOrThisCentury) {
    EXPECT_EQ(clock_.VarDateFromStr("6/1/04"), 38139.0);
    EXPECT_EQ(clock_.VarDateFromStr("6/1/99"), 36312.0);
}

TEST_P(ClockConformance, ATimeOfDayIsTheFraction) {
    EXPECT_EQ(clock_.VarDateFromStr("6/1/2004 12:00:00"), 38139.5);
    EXPECT_EQ(clock_.VarDateFromStr("6/1/2004 6:00 PM"), 38139.75);
    EXPECT_EQ(clock_.VarDateFromStr("6/1/2004 12:00 AM"), 38139.0);
    EXPECT_EQ(clock_.VarDateFromStr("2004-06-01 18:00"), 38139.75);
}

TEST_P(ClockConformance, BlanksAroundADateAndSmallLettersDoNotCount) {
    EXPECT_EQ(clock_.VarDateFromStr("  6/1/2004 "), 38139.0);
    EXPECT_EQ(clock_.VarDateFromStr("6/1/2004 6:00 pm"), 38139.75);
    EXPECT_EQ(clock_.VarDateFromStr("6/1/2004 6:00PM"), 38139.75);
}

TEST_P(ClockConformance, OtherTextsAreNoDates) {
    for (const char* text :
         {"", "***", "yesterday", "2/30/2004", "13/32/2004", "6/1/2004 25:00", "6/1/2004 noon"}) {
        EXPECT_EQ(clock_.VarDateFromStr(text), std::nullopt) << text;
    }
}

// The user's settings decide the form; under those of US English it is this one.
TEST_P(ClockConformance, ADateAndATimeHaveTheirShortForms) {
    const SystemTime time = {2004, 6, 2, 1, 15, 4, 5, 0};
    EXPECT_EQ(clock_.GetDateFormatA(time), "6/1/2004");
    EXPECT_EQ(clock_.GetTimeFormatA(time), "3:04:05 PM");
    EXPECT_EQ(clock_.GetTimeFormatA({2004, 6, 2, 1, 0, 0, 0, 0}), "12:00:00 AM");
}

// Those of the United States, the United Kingdom, Germany and Japan.
TEST_P(ClockConformance, TheUsersShortFormOfDatesIsTheOneThatIsWrittenAndRead) {
    const std::pair<const char*, const char*> forms[] = {{"M/d/yyyy", "6/1/2004"},
                                                         {"dd/MM/yyyy", "01/06/2004"},
                                                         {"dd.MM.yyyy", "01.06.2004"},
                                                         {"yyyy/MM/dd", "2004/06/01"}};
    for (const auto& [form, text] : forms) {
        home_->SetShortDate(form);
        EXPECT_EQ(clock_.GetDateFormatA({2004, 6, 2, 1, 15, 4, 5, 0}), text);
        EXPECT_EQ(clock_.VarDateFromStr(text), 38139.0) << text;
        EXPECT_EQ(clock_.VarDateFromStr(std::string(text) + " 12:00:00"), 38139.5) << text;
        EXPECT_EQ(clock_.VarDateFromStr("2004-06-01"), 38139.0) << form;
        EXPECT_EQ(clock_.VarDateFromStr("***"), std::nullopt) << form;
        EXPECT_EQ(clock_.VarDateFromStr(""), std::nullopt) << form;
    }
}

TEST_P(ClockConformance, TheOrderOfTheShortFormDecidesWhichNumberIsTheDay) {
    home_->SetShortDate("dd/MM/yyyy");
    EXPECT_EQ(clock_.VarDateFromStr("6/1/2004"), 37992.0);  // 6 January
    EXPECT_EQ(clock_.VarDateFromStr("1/6/04"), 38139.0);
    home_->SetShortDate("yyyy/MM/dd");
    EXPECT_EQ(clock_.VarDateFromStr("04/6/1"), 38139.0);
}

TEST_P(ClockConformance, TheTicksGoOnWhileTheProgramSleeps) {
    const std::uint32_t before = clock_.GetTickCount();
    clock_.Sleep(60);
    const std::uint32_t passed = clock_.GetTickCount() - before;
    // The system may look at its clock as seldom as 18 times a second.
    EXPECT_GE(passed, 1u);
    EXPECT_LT(passed, 30'000u);
}

}  // namespace velkarix
