// Values that grow while they are read: between two calls others write longer ones. What each
// place shows is one whole state of the value, or nothing.
#include <algorithm>

#include "startup/StartupColumns.h"
#include "tests/field/FieldPages.h"
#include "tests/installed/CacheRecord.h"

namespace velkarix {
namespace {

constexpr Hive AllUsers = Hive::LocalMachine;
constexpr const char* Class = "{0DD0C1A5-0003}";
constexpr const char* Uninstall = "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\App";

class FieldGrowth : public FieldPages {
  protected:
    // Enters the page with the value growing at each call that reads it, in turn: before that call
    // it has as many bytes as it had, and from there on the longer text. Gives what was seen each
    // time.
    template <typename See>
    RowTexts SeeGrowing(const FieldList& list, Hive hive, const std::string& key,
                        const std::string& name, const std::string& grown, See see) {
        const auto before = *Registry().ValueAt(hive, key, name);
        Enter(list);
        Machine().Journal().Clear();
        Enter(list);
        const std::size_t calls = Machine().Journal().Calls().size();
        RowTexts seen;
        for (std::size_t call = 0; call < calls; ++call) {
            Registry().SetRaw(hive, key, name, before.type, before.data);
            Machine().Journal().Clear();
            Machine().Journal().OnCall(call, [&] { Machine().SetValue(hive, key, name, grown); });
            Enter(list);
            seen.push_back(see());
        }
        std::sort(seen.begin(), seen.end());
        seen.erase(std::unique(seen.begin(), seen.end()), seen.end());
        EXPECT_EQ(Messages(), RowTexts());
        return seen;
    }
    std::string Cell(const FieldList& list, std::size_t column) {
        return Rows(list).empty() ? "(no row)" : Rows(list)[0].at(column);
    }
    const std::string longer = std::string(5000, 'l');
};

TEST_F(FieldGrowth, OfARunValueIsShownWhole) {
    Machine().SetValue(AllUsers, LiveRun, "Odd", "short");
    EXPECT_EQ(SeeGrowing(StartupRows, AllUsers, LiveRun, "Odd", longer,
                         [&] { return Cell(StartupRows, startupColumn::Command); }),
              (RowTexts{longer, "short"}));
}

TEST_F(FieldGrowth, OfARunValueThatIsLongIsShownWhole) {
    Machine().SetValue(AllUsers, LiveRun, "Odd", longer);
    const std::string longest(9000, 'm');
    EXPECT_EQ(SeeGrowing(StartupRows, AllUsers, LiveRun, "Odd", longest,
                         [&] { return Cell(StartupRows, startupColumn::Command); }),
              (RowTexts{longer, longest}));
}

TEST_F(FieldGrowth, OfAMenusPathShowsNoHalfOfIt) {
    const std::string key = std::string(live::Menus) + "\\Odd";
    Machine().SetValue(AllUsers, key, "", "short");
    const FieldList rows = BrowserRows(Menus);
    EXPECT_EQ(SeeGrowing(rows, AllUsers, key, "", longer, [&] { return Cell(rows, 3); }),
              (RowTexts{"", longer, "short"}));
}

TEST_F(FieldGrowth, OfAClassPathShowsNoHalfOfIt) {
    const std::string key = std::string("CLSID\\") + Class + "\\InprocServer32";
    Machine().SetValue(Hive::ClassesRoot, key, "", "short");
    Machine().AddKey(AllUsers, std::string(live::BHOs) + "\\" + Class);
    const FieldList rows = BrowserRows(BHOs);
    EXPECT_EQ(SeeGrowing(rows, Hive::ClassesRoot, key, "", longer, [&] { return Cell(rows, 3); }),
              (RowTexts{"", longer, "short"}));
}

TEST_F(FieldGrowth, OfAnApplicationsNameShowsNoHalfOfIt) {
    Machine().SetValue(AllUsers, Uninstall, "DisplayName", "short");
    Machine().SetValue(AllUsers, Uninstall, "UninstallString", "u");
    EXPECT_EQ(SeeGrowing(InstalledRows, AllUsers, Uninstall, "DisplayName", longer,
                         [&] { return Cell(InstalledRows, 0); }),
              (RowTexts{"(no row)", longer, "short"}));
}

// A zone of more than four bytes is none.
TEST_F(FieldGrowth, OfADomainsZoneShowsTheNumberOrNothing) {
    const std::string key = std::string(live::Domains) + "\\odd.example";
    Machine().SetDword(Hive::CurrentUser, key, "*", 2);
    const FieldList rows = BrowserRows(Domains);
    EXPECT_EQ(SeeGrowing(rows, Hive::CurrentUser, key, "*", longer, [&] { return Cell(rows, 2); }),
              (RowTexts{"(no row)", "Trusted"}));
}

TEST_F(FieldGrowth, OfASlowInfoCacheGivesItsIconOrNone) {
    Machine().AddFile("C:\\a.exe").Icon(0, {1, 1, {1}}, {1, 1, {2}});
    for (const char* name : {"DisplayName", "UninstallString"}) {
        Machine().SetValue(AllUsers, Uninstall, name, "App");
    }
    const std::string key =
        "Software\\Microsoft\\Windows\\CurrentVersion\\App Management\\ARPCache\\App";
    Registry().SetRaw(AllUsers, key, "SlowInfoCache", registryType::Binary,
                      CacheRecord(u"C:\\a.exe"));
    EXPECT_EQ(SeeGrowing(InstalledRows, AllUsers, key, "SlowInfoCache", longer,
                         [&] {
                             const bool isOwn = View(InstalledRows).Row(0).Image() != DefaultImage;
                             return std::string(isOwn ? "its own" : "default");
                         }),
              (RowTexts{"default", "its own"}));
}

// Moved while it grows, a value arrives whole or stays.
TEST_F(FieldGrowth, OfAValueThatMovesLosesNothing) {
    for (std::size_t call = 0;; ++call) {
        SCOPED_TRACE(call);
        Machine().SetValue(AllUsers, LiveRun, "Odd", "short");
        Registry().RemoveValue(AllUsers, HeldRun, "Odd");
        Enter(StartupRows);
        View(StartupRows).UserCheck(View(StartupRows).Row(0), true);
        Machine().Journal().Clear();
        bool hasGrown = false;
        Machine().Journal().OnCall(call, [&] {
            hasGrown = true;
            if (Registry().ValueAt(AllUsers, LiveRun, "Odd")) {
                Machine().SetValue(AllUsers, LiveRun, "Odd", longer);
            }
        });
        Click(StartupRows, StartupRows.disable);
        Machine().Journal().OnCall(SIZE_MAX, {});
        const auto live = Registry().TextAt(AllUsers, LiveRun, "Odd");
        const auto held = Registry().TextAt(AllUsers, HeldRun, "Odd");
        ASSERT_TRUE(live || held);
        for (const auto& each : {live, held}) {
            EXPECT_TRUE(!each || *each == "short" || *each == longer);
        }
        if (!hasGrown) return;
    }
}

}  // namespace
}  // namespace velkarix
