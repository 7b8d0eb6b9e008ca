#include "browser/UrlView.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ViewTest.h"

namespace velkarix {
namespace {

constexpr const char* Main = "Software\\Microsoft\\Internet Explorer\\Main";
constexpr const char* Search = "Software\\Microsoft\\Internet Explorer\\Search";
constexpr const char* SearchURL = "Software\\Microsoft\\Internet Explorer\\SearchURL";
constexpr const char* DefaultPrefix =
    "Software\\microsoft\\Windows\\CurrentVersion\\URL\\DefaultPrefix";
constexpr const char* Prefixes = "Software\\microsoft\\Windows\\CurrentVersion\\URL\\Prefixes";
constexpr const char* ReportPath = "C:\\report.txt";

struct Place {
    const char* box;
    Hive hive;
    const char* key;
    const char* name;
};

// In the order of reading.
constexpr Place Places[] = {
    {"txtDefPrefix", Hive::LocalMachine, DefaultPrefix, ""},
    {"txtwwwPrefix", Hive::LocalMachine, Prefixes, "www"},
    {"txtHomePrefix", Hive::LocalMachine, Prefixes, "home"},
    {"txtMosaicPrefix", Hive::LocalMachine, Prefixes, "mosaic"},
    {"txtCustomizeSearch", Hive::LocalMachine, Search, "CustomizeSearch"},
    {"txtSEarchAssistant", Hive::LocalMachine, Search, "SearchAssistant"},
    {"txtStartPage", Hive::CurrentUser, Main, "Start Page"},
    {"txtSearchBar", Hive::CurrentUser, Main, "Search Bar"},
    {"txtSearchPage", Hive::CurrentUser, Main, "Search Page"},
    {"txtSearchURL", Hive::CurrentUser, SearchURL, ""},
};

class UrlViewTest : public ViewTest<UrlView> {
  protected:
    static Hive Other(Hive hive) {
        return hive == Hive::CurrentUser ? Hive::LocalMachine : Hive::CurrentUser;
    }
    // Each place gets the text "in <box>", and the same place of the other hive another one.
    void FillRegistry() {
        for (const Place& place : Places) {
            program.machine.SetValue(place.hive, place.key, place.name, In(place.box));
            program.machine.SetValue(Other(place.hive), place.key, place.name, "elsewhere");
        }
    }
    void TypeInAll() {
        for (const Place& place : Places) Type(place.box, Typed(place.box));
    }
    static std::string In(const std::string& box) { return "in " + box; }
    static std::string Typed(const std::string& box) { return "typed " + box; }
    std::string Report() { return program.machine.disk.ContentOf(ReportPath).value_or("(none)"); }
};

TEST_F(UrlViewTest, ShowsItsFramesBoxesAndButtonsInTabOrder) {
    EXPECT_EQ(TabOrder(), (std::vector<std::string>{
                              "fmStartPage",        "txtStartPage",       "cmdBlank",
                              "fmSearchURLs",       "lblSearchURL",       "txtSearchURL",
                              "cmdSearchURL",       "lblSearchPage",      "txtSearchPage",
                              "cmdSearchPage",      "lblSearchBar",       "txtSearchBar",
                              "cmdSearchBar",       "lblSEarchAssistant", "txtSEarchAssistant",
                              "cmdSearchAssistant", "lblCustomizeSearch", "txtCustomizeSearch",
                              "cmdCustomizeSearch", "fmURLPrefixes",      "lblDefPrefix",
                              "txtDefPrefix",       "lblwwwPrefix",       "txtwwwPrefix",
                              "lblHomePrefix",      "txtHomePrefix",      "lblMosaicPrefix",
                              "txtMosaicPrefix",    "cmdDefPrefix",       "cmdApply"}));
    ExpectEachControlPlacedOnce();
}

TEST_F(UrlViewTest, NamesWhatItShows) {
    const std::pair<const char*, const char*> texts[] = {
        {"fmStartPage", "Start Page"},
        {"fmSearchURLs", "Search URLs"},
        {"fmURLPrefixes", "URL Prefixes (These words are added before the typed address)"},
        {"lblSearchURL", "Search URL:"},
        {"lblSearchPage", "Search Page:"},
        {"lblSearchBar", "Search Bar:"},
        {"lblSEarchAssistant", "Search Assistant:"},
        {"lblCustomizeSearch", "Customize Search:"},
        {"lblDefPrefix", "default:"},
        {"lblwwwPrefix", "www:"},
        {"lblHomePrefix", "home:"},
        {"lblMosaicPrefix", "mosaic:"},
        {"cmdBlank", "Blank Page"},
        {"cmdSearchURL", "Default"},
        {"cmdSearchPage", "Default"},
        {"cmdSearchBar", "Default"},
        {"cmdSearchAssistant", "Default"},
        {"cmdCustomizeSearch", "Default"},
        {"cmdDefPrefix", "Default"},
        {"cmdApply", "Apply"},
    };
    for (const auto& [control, text] : texts) EXPECT_EQ(page.Find(control)->Text(), text);
    for (const Place& place : Places) EXPECT_NE(page.Find(place.box)->Text(), "") << place.box;
}

TEST_F(UrlViewTest, ReadsEachBoxFromItsPlace) {
    FillRegistry();
    view.LoadUrls();
    for (const Place& place : Places) EXPECT_EQ(Value(place.box), In(place.box));
}

TEST_F(UrlViewTest, ReadsInOrderAndChangesNothing) {
    FillRegistry();
    view.LoadUrls();
    std::vector<std::string> wanted;
    for (const Place& place : Places) {
        const char* hive = place.hive == Hive::CurrentUser ? "HKCU\\" : "HKLM\\";
        // First for the size, then for the text.
        wanted.insert(wanted.end(), 2, std::string(hive) + place.key + ", " + place.name);
    }
    EXPECT_EQ(program.machine.Journal().ArgumentsOf("RegQueryValueExA"), wanted);
    EXPECT_EQ(Changes(), std::vector<std::string>());
}

TEST_F(UrlViewTest, ShowsAnEmptyBoxForWhatIsMissing) {
    TypeInAll();
    view.LoadUrls();
    for (const Place& place : Places) EXPECT_EQ(Value(place.box), "") << place.box;
    EXPECT_EQ(Told(), std::vector<std::string>());
}

TEST_F(UrlViewTest, ShowsValuesOfOtherTypesAsTheirBytesUpToANul) {
    program.machine.SetDword(Hive::CurrentUser, Main, "Start Page", 0x00434241);
    program.machine.registry.SetRaw(Hive::CurrentUser, Main, "Search Bar", registryType::Binary,
                                    {'a', 'b', 0, 'c'});
    program.machine.registry.SetRaw(Hive::CurrentUser, Main, "Search Page", registryType::ExpandSz,
                                    {'%', 'x', '%'});
    program.machine.registry.SetRaw(Hive::CurrentUser, SearchURL, "", registryType::None, {});
    program.machine.registry.SetRaw(Hive::LocalMachine, Prefixes, "www", 77, {0, 'z'});
    view.LoadUrls();
    EXPECT_EQ(Value("txtStartPage"), "ABC");
    EXPECT_EQ(Value("txtSearchBar"), "ab");
    EXPECT_EQ(Value("txtSearchPage"), "%x%");
    EXPECT_EQ(Value("txtSearchURL"), "");
    EXPECT_EQ(Value("txtwwwPrefix"), "");
}

TEST_F(UrlViewTest, OffersToApplyOnceABoxIsTypedIn) {
    for (const Place& place : Places) {
        view.Enter();
        EXPECT_FALSE(IsEnabled("cmdApply"));
        Type(place.box, "other");
        EXPECT_TRUE(IsEnabled("cmdApply")) << place.box;
    }
}

TEST_F(UrlViewTest, BeginsWithNothingToApply) {
    EXPECT_FALSE(IsEnabled("cmdApply"));
    EXPECT_FALSE(Click("cmdApply"));
    EXPECT_EQ(Changes(), std::vector<std::string>());
}

TEST_F(UrlViewTest, OffersToApplyOnceALoadChangesABox) {
    view.LoadUrls();
    EXPECT_FALSE(IsEnabled("cmdApply"));
    FillRegistry();
    view.LoadUrls();
    EXPECT_TRUE(IsEnabled("cmdApply"));
}

TEST_F(UrlViewTest, EnteringReadsTheRegistryAgainAndDropsWhatWasTyped) {
    FillRegistry();
    TypeInAll();
    view.Enter();
    for (const Place& place : Places) EXPECT_EQ(Value(place.box), In(place.box));
    EXPECT_FALSE(IsEnabled("cmdApply"));
}

TEST_F(UrlViewTest, PutsTheStockAddressIntoTheBoxesOfAButtonAndWritesNothing) {
    struct Stock {
        const char* button;
        std::vector<std::string> boxes;
        const char* text;
    };
    const Stock stocks[] = {
        {"cmdBlank", {"txtStartPage"}, "About:Blank"},
        {"cmdSearchURL", {"txtSearchURL"}, "http://home.microsoft.com/access/autosearch.asp?p=%s"},
        {"cmdSearchPage", {"txtSearchPage"}, "http://home.microsoft.com/access/allinone.asp"},
        {"cmdSearchBar", {"txtSearchBar"}, "http://home.microsoft.com/search/lobby/search.asp"},
        {"cmdSearchAssistant",
         {"txtSEarchAssistant"},
         "http://ie.search.msn.com/{SUB_RFC1766}/srchasst/srchasst.htm"},
        {"cmdCustomizeSearch",
         {"txtCustomizeSearch"},
         "http://ie.search.msn.com/{SUB_RFC1766}/srchasst/srchcust.htm"},
        {"cmdDefPrefix",
         {"txtDefPrefix", "txtwwwPrefix", "txtHomePrefix", "txtMosaicPrefix"},
         "http://"},
    };
    FillRegistry();
    for (const Stock& stock : stocks) {
        view.Enter();
        EXPECT_TRUE(Click(stock.button));
        const std::set<std::string> targets(stock.boxes.begin(), stock.boxes.end());
        for (const Place& place : Places) {
            EXPECT_EQ(Value(place.box), targets.contains(place.box) ? stock.text : In(place.box));
        }
        EXPECT_TRUE(IsEnabled("cmdApply")) << stock.button;
    }
    EXPECT_EQ(Changes(), std::vector<std::string>());
}

TEST_F(UrlViewTest, AppliesInOrder) {
    FillRegistry();
    view.Enter();
    Type("txtStartPage", "x");
    program.machine.Journal().Clear();
    EXPECT_TRUE(Click("cmdApply"));
    const std::string main = Main;
    const std::string search = Search;
    const std::string prefixes = Prefixes;
    EXPECT_EQ(Changes(),
              (std::vector<std::string>{std::string("RegSetValueExA HKLM\\") + DefaultPrefix + ", ",
                                        "RegSetValueExA HKLM\\" + prefixes + ", www",
                                        "RegSetValueExA HKLM\\" + prefixes + ", home",
                                        "RegSetValueExA HKLM\\" + prefixes + ", mosaic",
                                        "RegSetValueExA HKLM\\" + search + ", CustomizeSearch",
                                        "RegSetValueExA HKLM\\" + search + ", SearchAssistant",
                                        "RegSetValueExA HKCU\\" + main + ", Start Page",
                                        "RegSetValueExA HKLM\\" + main + ", Start Page",
                                        "RegSetValueExA HKCU\\" + main + ", Search Bar",
                                        "RegSetValueExA HKLM\\" + main + ", Search Bar",
                                        "RegSetValueExA HKCU\\" + main + ", Search Page",
                                        "RegSetValueExA HKLM\\" + main + ", Search Page",
                                        std::string("RegSetValueExA HKCU\\") + SearchURL + ", ",
                                        "RegSetValueExA HKLM\\" + main + ", Default_Page_URL",
                                        "RegSetValueExA HKLM\\" + main + ", Default_Search_URL",
                                        "RegDeleteKeyA HKCU\\" + search,
                                        "RegDeleteValueA HKCU\\" + main + ", Default_Page_URL",
                                        "RegDeleteValueA HKCU\\" + main + ", Default_Search_URL",
                                        "RegSetValueExA HKCU\\" + main + ", Do404Search"}));
    EXPECT_FALSE(IsEnabled("cmdApply"));
    EXPECT_EQ(Told(), std::vector<std::string>());
}

// What an apply leaves behind, whatever was there before.
TEST_F(UrlViewTest, AppliesTheBoxesAndSetsTheBrowsersOwnAddressesBack) {
    FillRegistry();
    for (const char* name : {"Default_Page_URL", "Default_Search_URL"}) {
        program.machine.SetValue(Hive::CurrentUser, Main, name, "http://hijacked.example");
        program.machine.SetValue(Hive::LocalMachine, Main, name, "http://hijacked.example");
    }
    program.machine.SetValue(Hive::CurrentUser, Main, "Unrelated", "stays");
    TypeInAll();
    Click("cmdApply");
    for (const Place& place : Places) {
        EXPECT_EQ(Stored(place.hive, place.key, place.name), Typed(place.box));
        EXPECT_EQ(program.machine.registry.ValueAt(place.hive, place.key, place.name)->type,
                  registryType::Sz);
    }
    EXPECT_EQ(Stored(Hive::LocalMachine, Main, "Start Page"), Typed("txtStartPage"));
    EXPECT_EQ(Stored(Hive::LocalMachine, Main, "Search Bar"), Typed("txtSearchBar"));
    EXPECT_EQ(Stored(Hive::LocalMachine, Main, "Search Page"), Typed("txtSearchPage"));
    EXPECT_EQ(Stored(Hive::LocalMachine, SearchURL, ""), "elsewhere");
    EXPECT_EQ(Stored(Hive::CurrentUser, Prefixes, "www"), "elsewhere");
    EXPECT_EQ(Stored(Hive::LocalMachine, Main, "Default_Page_URL"),
              "http://www.microsoft.com/isapi/redir.dll?prd=ie&pver=6&ar=msnhome");
    EXPECT_EQ(Stored(Hive::LocalMachine, Main, "Default_Search_URL"),
              "http://www.microsoft.com/isapi/redir.dll?prd=ie&ar=iesearch");
    EXPECT_FALSE(program.machine.registry.HasKey(Hive::CurrentUser, Search));
    EXPECT_EQ(Stored(Hive::CurrentUser, Main, "Default_Page_URL"), "(missing)");
    EXPECT_EQ(Stored(Hive::CurrentUser, Main, "Default_Search_URL"), "(missing)");
    EXPECT_EQ(Stored(Hive::CurrentUser, Main, "Unrelated"), "stays");
    EXPECT_EQ(program.machine.registry.ValueAt(Hive::CurrentUser, Main, "Do404Search"),
              (MemoryValue{"Do404Search", registryType::Binary, {1, 0, 0, 0}}));
    EXPECT_EQ(program.machine.registry.OpenKeyCount(), 0u);
}

TEST_F(UrlViewTest, WritesTheBlankPageToBothHives) {
    Click("cmdBlank");
    Click("cmdApply");
    EXPECT_EQ(Stored(Hive::CurrentUser, Main, "Start Page"), "About:Blank");
    EXPECT_EQ(Stored(Hive::LocalMachine, Main, "Start Page"), "About:Blank");
}

TEST_F(UrlViewTest, WritesAnEmptyBoxAsAnEmptyTextAndMakesItsKey) {
    view.ApplyUrls();
    for (const Place& place : Places) {
        EXPECT_EQ(program.machine.registry.ValueAt(place.hive, place.key, place.name),
                  (MemoryValue{place.name, registryType::Sz, {0}}));
    }
    EXPECT_EQ(Told(), std::vector<std::string>());
}

TEST_F(UrlViewTest, KeepsAUsersSearchKeyThatHasSubkeysWithoutAWord) {
    program.machine.SetValue(Hive::CurrentUser, Search + std::string("\\Below"), "a", "kept");
    view.ApplyUrls();
    EXPECT_EQ(Stored(Hive::CurrentUser, Search + std::string("\\Below"), "a"), "kept");
    EXPECT_EQ(Told(), std::vector<std::string>());
    EXPECT_NE(Stored(Hive::CurrentUser, Main, "Do404Search"), "(missing)");
}

TEST_F(UrlViewTest, StoresAddressesOfAnyLengthAndSpellingAsTheyAre) {
    const std::string texts[] = {
        std::string("http://").append(2000, 'x'),
        "\"quoted\" 'twice' %s %1 & \\ \t",
        "caf\xE9 \x80\xFF",
        "  blanks at both ends  ",
    };
    for (const std::string& text : texts) {
        for (const Place& place : Places) Type(place.box, text);
        Click("cmdApply");
        TypeInAll();
        view.Enter();
        for (const Place& place : Places) EXPECT_EQ(Value(place.box), text) << place.box;
    }
}

TEST_F(UrlViewTest, ReadsATextWithANulBackUpToIt) {
    Type("txtStartPage", std::string("before\0behind", 13));
    Click("cmdApply");
    view.Enter();
    EXPECT_EQ(Value("txtStartPage"), "before");
}

TEST_F(UrlViewTest, TellsOfEachKeyThatCanNotBeMadeAndGoesOn) {
    TypeInAll();
    program.machine.FailAlways("RegCreateKeyA", error::AccessDenied);
    Click("cmdApply");
    std::vector<std::string> wanted;
    for (const char* key : {DefaultPrefix, Prefixes, Prefixes, Prefixes, Search, Search, Main, Main,
                            Main, Main, Main, Main, SearchURL, Main, Main, Main}) {
        wanted.push_back(std::string("Following Key Could not be created: \r\n") + key + "\r\n" +
                         ErrorText(error::AccessDenied));
    }
    EXPECT_EQ(Told(), wanted);
    ExpectTold(wanted.back(), MessageIcon::Critical);
    EXPECT_FALSE(IsEnabled("cmdApply"));
}

TEST_F(UrlViewTest, WritesTheUsersHiveWhereThatOfTheMachineIsClosed) {
    TypeInAll();
    program.machine.registry.Restrict(Hive::LocalMachine, "Software", KeyAccess::Read);
    Click("cmdApply");
    EXPECT_EQ(Told().size(), 11u);
    EXPECT_EQ(Stored(Hive::CurrentUser, Main, "Start Page"), Typed("txtStartPage"));
    EXPECT_EQ(Stored(Hive::CurrentUser, SearchURL, ""), Typed("txtSearchURL"));
    EXPECT_NE(Stored(Hive::CurrentUser, Main, "Do404Search"), "(missing)");
    EXPECT_EQ(Stored(Hive::LocalMachine, Main, "Start Page"), "(missing)");
}

// The registry layer doesn't tell of a refused value; the next look shows what is stored.
TEST_F(UrlViewTest, ShowsWhatIsStoredAfterValuesWereRefused) {
    FillRegistry();
    program.machine.registry.Restrict(Hive::LocalMachine, "Software", KeyAccess::Read);
    TypeInAll();
    Click("cmdApply");
    EXPECT_EQ(Told(), std::vector<std::string>());
    view.Enter();
    EXPECT_EQ(Value("txtDefPrefix"), In("txtDefPrefix"));
    EXPECT_EQ(Value("txtStartPage"), Typed("txtStartPage"));
}

TEST_F(UrlViewTest, LosesAtMostOneStepToEachCallThatFails) {
    TypeInAll();
    view.ApplyUrls();
    const std::size_t calls = program.machine.Journal().Calls().size();
    ASSERT_GT(calls, 50u);
    for (std::size_t failing = 0; failing < calls; ++failing) {
        TestProgram other;
        ViewPage<UrlView> otherPage(other.application);
        for (const Place& place : Places) {
            other.machine.SetValue(place.hive, place.key, place.name, "old");
            dynamic_cast<TextBox&>(*otherPage.Find(place.box)).TakeInput("new");
        }
        other.machine.Journal().FailCall(failing, error::AccessDenied);
        otherPage.view.cmdApply_Click();
        int lost = 0;
        for (const Place& place : Places) {
            lost += other.machine.registry.TextAt(place.hive, place.key, place.name) != "new";
        }
        EXPECT_LE(lost, 1) << failing;
        EXPECT_LE(other.desktop.messages.size(), 1u) << failing;
        EXPECT_FALSE(otherPage.Find("cmdApply")->Enabled());
    }
}

TEST_F(UrlViewTest, AppendsTheRegistrysAddressesToAReport) {
    FillRegistry();
    TypeInAll();
    program.machine.AddFile(ReportPath).Content("before\r\n");
    EXPECT_TRUE(view.printReportURLs(ReportPath));
    EXPECT_EQ(Report(),
              "before\r\n"
              "Start Page        : in txtStartPage\r\n"
              "Cust Search       : in txtCustomizeSearch\r\n"
              "Search Asst.      : in txtSEarchAssistant\r\n"
              "Search Page       : in txtSearchPage\r\n"
              "Search URL        : in txtSearchURL\r\n"
              "Search Bar        : in txtSearchBar\r\n"
              "Prefix def        : in txtDefPrefix\r\n"
              "Prefix www        : in txtwwwPrefix\r\n"
              "Prefix home       : in txtHomePrefix\r\n"
              "Prefix mosaic     : in txtMosaicPrefix\r\n");
    EXPECT_EQ(Told(), std::vector<std::string>());
}

TEST_F(UrlViewTest, ShowsWhatItReportsAndStillOffersToApply) {
    FillRegistry();
    view.Enter();
    Type("txtStartPage", "typed");
    view.printReportURLs(ReportPath);
    EXPECT_EQ(Value("txtStartPage"), In("txtStartPage"));
    EXPECT_TRUE(IsEnabled("cmdApply"));
}

TEST_F(UrlViewTest, ReportsMissingAddressesAsEmpty) {
    view.printReportURLs(ReportPath);
    EXPECT_EQ(Report().substr(0, 22), "Start Page        : \r\n");
    EXPECT_EQ(Report().size(), 10u * 22u);
}

TEST_F(UrlViewTest, TellsWhyAReportCouldNotBeWritten) {
    EXPECT_FALSE(view.printReportURLs("X:\\report.txt"));
    EXPECT_EQ(Told().size(), 1u);
    ExpectTold("Error Occurred URLs printReport: \r\n" + ErrorText(error::PathNotFound),
               MessageIcon::Information);
}

}  // namespace
}  // namespace velkarix
