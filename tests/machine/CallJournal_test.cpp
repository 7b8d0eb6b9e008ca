#include "tests/machine/CallJournal.h"

#include <gtest/gtest.h>

namespace velkarix {

TEST(CallJournal, KeepsCallsInTheirOrder) {
    CallJournal journal;
    journal.Enter("RegCreateKeyA", "HKCU\\Key");
    journal.Enter("RegCloseKey");
    EXPECT_EQ(journal.Calls(),
              (std::vector<Call>{{"RegCreateKeyA", "HKCU\\Key"}, {"RegCloseKey", ""}}));
    EXPECT_EQ(journal.Names(), (std::vector<std::string>{"RegCreateKeyA", "RegCloseKey"}));
    EXPECT_EQ(journal.ArgumentsOf("RegCreateKeyA"), std::vector<std::string>{"HKCU\\Key"});
    EXPECT_EQ(journal.CountOf("RegCloseKey"), 1u);
    journal.Clear();
    EXPECT_EQ(journal.Calls(), std::vector<Call>());
}

TEST(CallJournal, TheNextCallFailsOnceForEachTimeItWasAsked) {
    CallJournal journal;
    journal.FailNext("A", error::AccessDenied);
    journal.FailNext("A", error::MoreData);
    EXPECT_EQ(journal.Enter("B"), error::Success);
    EXPECT_EQ(journal.Enter("A"), error::AccessDenied);
    EXPECT_EQ(journal.Enter("A"), error::MoreData);
    EXPECT_EQ(journal.Enter("A"), error::Success);
}

TEST(CallJournal, ALastingFailureEndsWhenSuccessIsAskedFor) {
    CallJournal journal;
    journal.FailAlways("A", error::AccessDenied);
    EXPECT_EQ(journal.Enter("A"), error::AccessDenied);
    journal.Clear();
    EXPECT_EQ(journal.Enter("A"), error::AccessDenied);
    journal.FailAlways("A", error::Success);
    EXPECT_EQ(journal.Enter("A"), error::Success);
}

TEST(CallJournal, AFailedCallIsWrittenDownToo) {
    CallJournal journal;
    journal.FailNext("A");
    EXPECT_NE(journal.Enter("A"), error::Success);
    EXPECT_EQ(journal.CountOf("A"), 1u);
}

TEST(CallJournal, ACallFailsByItsNumberSinceTheLastClear) {
    CallJournal journal;
    journal.Enter("A");
    journal.Clear();
    journal.FailCall(1, error::AccessDenied);
    EXPECT_EQ(journal.Enter("A"), error::Success);
    EXPECT_EQ(journal.Enter("B"), error::AccessDenied);
    EXPECT_EQ(journal.Enter("C"), error::Success);
}

TEST(CallJournal, AllCallsFailFromANumberOn) {
    CallJournal journal;
    journal.FailCall(1, error::AccessDenied, true);
    EXPECT_EQ(journal.Enter("A"), error::Success);
    EXPECT_EQ(journal.Enter("B"), error::AccessDenied);
    EXPECT_EQ(journal.Enter("C"), error::AccessDenied);
}

TEST(CallJournal, OthersActOnceBeforeACallOfItsNumber) {
    CallJournal journal;
    journal.Enter("A");
    journal.Clear();
    std::vector<std::size_t> callsBefore;
    journal.OnCall(1, [&] { callsBefore.push_back(journal.Calls().size()); });
    journal.Enter("A");
    EXPECT_TRUE(callsBefore.empty());
    journal.Enter("B");
    journal.Clear();
    journal.Enter("A");
    journal.Enter("B");
    EXPECT_EQ(callsBefore, (std::vector<std::size_t>{2}));
}

TEST(CallJournal, TheProcessEndsAtACallOfItsNumberButNotAtClosing) {
    CallJournal journal;
    journal.EndAtCall(1);
    EXPECT_EQ(journal.Enter("A"), error::Success);
    EXPECT_EQ(journal.Enter("RegCloseKey"), error::Success);
    EXPECT_THROW(journal.Enter("B"), ProcessEnded);
    EXPECT_EQ(journal.Enter("CloseFile"), error::Success);
    EXPECT_THROW(journal.Enter("C"), ProcessEnded);
    EXPECT_EQ(journal.Enter("AdjustTokenPrivileges"), error::Success);
    EXPECT_EQ(journal.Names(),
              (std::vector<std::string>{"A", "RegCloseKey", "CloseFile", "AdjustTokenPrivileges"}));
}

}  // namespace velkarix
