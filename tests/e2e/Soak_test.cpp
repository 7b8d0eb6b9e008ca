// The program in long use, in one process: whatever it does again and again, it holds no more of
// the system's objects and of memory than after the first times. VELKARIX_SOAK is the percentage of
// the full number of rounds that is made; without it, a few.
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <initializer_list>

#include "AskInside.h"
#include "MemoryUse.h"
#include "ObjectCounts.h"
#include "Setup.h"
#include "StartupTest.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

constexpr const char* LiveDomains =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\Domains";
constexpr const char* HeldDomains = "Software\\Velkarix\\Disabled\\Domains";
constexpr DWORD LongPatience = 120000;  // milliseconds

class Soak : public StartupTest {
  protected:
    // Wine's common controls keep three words for each static control, and never free them.
    static constexpr int LostByALabel = 12;  // bytes
    static constexpr int BrowserLabels = 12;
    static constexpr int OptionsLabels = 3;
    static constexpr int UtilitiesLabels = 4;

    ~Soak() override {
        RestoreTree(HKEY_CURRENT_USER, LiveDomains, live_);
        RestoreTree(HKEY_CURRENT_USER, HeldDomains, held_);
    }

    static int Share(int fullRounds) {
        constexpr int FewPercent = 5;
        const std::string percent = Environment("VELKARIX_SOAK");
        return fullRounds * (percent.empty() ? FewPercent : std::atoi(percent.c_str())) / 100;
    }

    // Does `round` this share of `fullRounds` times, and expects that nothing is held that wasn't
    // after the first times; but for what Wine loses in a round, by the labels that come and go.
    void Repeat(const char* what, int fullRounds, int labels, const std::function<void()>& round) {
        const int rounds = Share(fullRounds);
        constexpr int FirstTimes = 17;  // what is made once and kept is there by then
        for (int i = 0; i < FirstTimes; ++i) round();
        const ObjectCounts objects = RestingObjects(Running());
        const MemoryUse before = MeasureMemory(Running());
        ASSERT_GT(before.blocks, 0u);
        for (int i = 0; i < rounds && !HasFailure(); ++i) round();
        const ObjectCounts now = RestingObjects(Running());
        const MemoryUse after = MeasureMemory(Running());
        Print(what, rounds, objects, now, before, after);
        ExpectNoMoreObjects(Running(), objects);
        // A single piece that is lost in each round, however small.
        EXPECT_LT(after.blocks, before.blocks + static_cast<std::size_t>(rounds) / 2) << what;
        EXPECT_LE(after.bytes, before.bytes + before.bytes / 20) << what;
        const auto lostByWine = static_cast<std::size_t>(rounds * labels * LostByALabel);
        const auto lessThanAnObject = static_cast<std::size_t>(rounds * 8 + 2048);
        EXPECT_LT(after.allBytes, before.allBytes + lostByWine + lessThanAnObject) << what;
        EXPECT_LE(after.privateBytes, before.privateBytes + before.privateBytes / 20) << what;
    }

    void PressAll(std::initializer_list<const char*> names) {
        for (const char* name : names) ASSERT_TRUE(Press(Running().Control(name))) << name;
    }

  private:
    // Comes back when what the button does is done; other programs may have the machine meanwhile.
    static bool Press(const Window& button) {
        DWORD_PTR result = 0;
        return button.Visible() && button.Enabled() &&
               SendMessageTimeoutA(button.Handle(), BM_CLICK, 0, 0, SMTO_NORMAL, LongPatience,
                                   &result) != 0;
    }
    static void Print(const char* what, int rounds, const ObjectCounts& objects,
                      const ObjectCounts& now, const MemoryUse& before, const MemoryUse& after) {
        std::printf(
            "%d %s: kernel %lu to %lu, USER %lu to %lu, GDI %lu to %lu, blocks %zu to %zu, "
            "bytes %zu to %zu, of all heaps %zu to %zu, private %zu to %zu\n",
            rounds, what, objects.kernel, now.kernel, objects.user, now.user, objects.gdi, now.gdi,
            before.blocks, after.blocks, before.bytes, after.bytes, before.allBytes, after.allBytes,
            before.privateBytes, after.privateBytes);
        std::fflush(stdout);
    }

    const std::optional<RegistryTree> live_ = ReadTree(HKEY_CURRENT_USER, LiveDomains);
    const std::optional<RegistryTree> held_ = ReadTree(HKEY_CURRENT_USER, HeldDomains);
};

TEST_F(Soak, WhateverIsDoneManyTimesLeavesWhatTheProgramHoldsAsItWas) {
    Start();
    const int labels = BrowserLabels + OptionsLabels + UtilitiesLabels;
    Repeat("rounds of six page switches", 167, labels, [this] {
        PressAll(
            {"cmdIE", "cmdStartup", "cmdAddremove", "cmdOptions", "cmdUtilities", "cmdProcess"});
    });

    PressAll({"cmdIE", "cmdDomain"});
    const auto domains = [this] {
        PressAll({"cmdDomainCheckAll", "cmdDomainDisable", "cmdDomainCheckAll", "cmdDomainEnable"});
    };
    domains();
    const auto whole = ReadTree(HKEY_CURRENT_USER, LiveDomains);
    Repeat("rounds of disabling and enabling keys", 1000, 0, domains);
    EXPECT_EQ(ReadTree(HKEY_CURRENT_USER, LiveDomains), whole);

    PressAll({"cmdStartup"});
    const StartupItem& value = StartupItems[0];
    const StartupItem& shortcut = StartupItems[11];
    Repeat("rounds of disabling and enabling values and shortcuts", 250, 0, [&] {
        for (const bool enabled : {true, false}) {
            TickItem(value, enabled);
            TickItem(shortcut, enabled);
            PressAll({enabled ? "cmdDisable" : "cmdEnable"});
        }
    });
    EXPECT_EQ(ReadState(), StateBefore());

    ASSERT_EQ(AskInside(Running().Main(), SkipSaveDialogQuestion), "ready");
    PressAll({"cmdOptions", "chkProcess", "chkIE", "chkStartup", "chkAddremove"});
    Repeat("full reports", 100, BrowserLabels, [this] {
        const Window button = Running().Control("cmdReport");
        install_.Remove(SavedName);
        ASSERT_TRUE(button.Click());
        ASSERT_TRUE(WaitUntil([&] { return install_.Exists(SavedName) && button.Enabled(); },
                              LongPatience));
        EXPECT_GT(install_.Read(SavedName).size(), 1000u);
    });
}

}  // namespace
}  // namespace velkarix::e2e
