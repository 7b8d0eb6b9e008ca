#include "browser/DomainList.h"

#include "tests/browser/BrowserPage.h"

namespace velkarix {
namespace {

class DomainListTest : public BrowserPage {
  protected:
    static std::string KeyOf(const std::string& below, const char* holder = live::Domains) {
        return holder + ("\\" + below);
    }
    void Map(const std::string& below, const std::string& scheme, std::int32_t zone) {
        Machine().SetDword(Hive::CurrentUser, KeyOf(below), scheme,
                           static_cast<std::uint32_t>(zone));
    }
    void MapRaw(const std::string& below, const std::string& scheme, std::uint32_t type,
                const Bytes& data) {
        Machine().registry.SetRaw(Hive::CurrentUser, KeyOf(below), scheme, type, data);
    }
    std::vector<RowTexts> ShownRows() { return Rows("lstvDomains"); }
    ListRow& Row(std::size_t position) { return List("lstvDomains").Row(position); }
};

TEST_F(DomainListTest, HasItsColumnsAndPictures) {
    Open();
    EXPECT_EQ(List("lstvDomains").Columns(), (RowTexts{"Name", "Enabled", "Status"}));
    const ImageList& images = *List("lstvDomains").Images();
    ASSERT_EQ(images.Count(), 3u);
    const char* const names[] = {"Trusted", "Restricted", "Unknown"};
    for (std::size_t i = 0; i < std::size(names); ++i) {
        EXPECT_EQ(std::get<StockPicture>(images.At(i + 1)).name, names[i]);
    }
}

// ---- The eight places of a mapping

struct Step {
    const char* below;
    const char* scheme;
    const char* text;
};
constexpr Step Steps[] = {
    {"a.com", "*", "*.a.com"},
    {"a.com", "http", "http://*.a.com"},
    {"a.com", "https", "https://*.a.com"},
    {"a.com", "ftp", "ftp://*.a.com"},
    {"a.com\\www", "*", "www.a.com"},
    {"a.com\\www", "http", "http://www.a.com"},
    {"a.com\\www", "https", "https://www.a.com"},
    {"a.com\\www", "ftp", "ftp://www.a.com"},
};

TEST_F(DomainListTest, ShowsAMappingInEachOfTheEightPlaces) {
    Open();
    for (const Step& step : Steps) {
        Machine().registry.RemoveKey(Hive::CurrentUser, KeyOf("a.com"));
        Map(step.below, step.scheme, 2);
        Click("cmdDomainRefresh");
        EXPECT_EQ(ShownRows(), (std::vector<RowTexts>{{step.text, "True", "Trusted"}}));
        EXPECT_EQ(Row(0).Key(), "a.com");
    }
}

TEST_F(DomainListTest, ShowsTheFirstMappingWithItsOwnZoneAndHidesTheOthers) {
    for (std::size_t i = 0; i < std::size(Steps); ++i) {
        Map(Steps[i].below, Steps[i].scheme, static_cast<std::int32_t>(10 + i));
    }
    Open();
    for (std::size_t i = 0; i < std::size(Steps); ++i) {
        const std::string status = "Unknown: " + std::to_string(10 + i);
        EXPECT_EQ(ShownRows(), (std::vector<RowTexts>{{Steps[i].text, "True", status}}));
        Machine().registry.RemoveValue(Hive::CurrentUser, KeyOf(Steps[i].below), Steps[i].scheme);
        Click("cmdDomainRefresh");
    }
    EXPECT_EQ(ShownRows(), std::vector<RowTexts>());
}

TEST_F(DomainListTest, CountsZoneZeroAsMissingInEachOfTheEightPlaces) {
    for (const Step& step : Steps) Map(step.below, step.scheme, 2);
    Open();
    for (std::size_t i = 0; i + 1 < std::size(Steps); ++i) {
        Map(Steps[i].below, Steps[i].scheme, 0);
        Click("cmdDomainRefresh");
        EXPECT_EQ(RowNames("lstvDomains"), RowTexts{Steps[i + 1].text});
    }
    Map(Steps[7].below, Steps[7].scheme, 0);
    Click("cmdDomainRefresh");
    EXPECT_EQ(ShownRows(), std::vector<RowTexts>());
}

TEST_F(DomainListTest, HidesADomainThatIsMappedInNoneOfThem) {
    Map("a.com", "gopher", 2);
    Map("a.com", "", 2);
    Map("b.com\\mail", "*", 2);
    Map("c.com\\www\\deep", "*", 2);
    AddKey(Hive::CurrentUser, KeyOf("d.com"));
    Open();
    EXPECT_EQ(ShownRows(), std::vector<RowTexts>());
}

TEST_F(DomainListTest, LooksAtNoOtherSubkeyThanWww) {
    Map("a.com\\mail", "*", 4);
    Map("a.com\\www", "https", 4);
    Open();
    EXPECT_EQ(ShownRows(), (std::vector<RowTexts>{{"https://www.a.com", "True", "Restricted"}}));
    for (const std::string& opened : Machine().Journal().ArgumentsOf("RegOpenKeyExA")) {
        EXPECT_EQ(opened.find("mail"), std::string::npos) << opened;
    }
}

// ---- The zones

TEST_F(DomainListTest, NamesTwoZonesAndTellsTheNumberOfTheOthers) {
    struct {
        std::int32_t zone;
        const char* status;
        std::size_t image;
    } const zones[] = {
        {2, "Trusted", 1},
        {4, "Restricted", 2},
        {1, "Unknown: 1", 3},
        {3, "Unknown: 3", 3},
        {5, "Unknown: 5", 3},
        {-1, "Unknown: -1", 3},
        {0x7FFFFFFF, "Unknown: 2147483647", 3},
        {-0x7FFFFFFF - 1, "Unknown: -2147483648", 3},
    };
    Open();
    for (const auto& each : zones) {
        Map("a.com", "*", each.zone);
        Click("cmdDomainRefresh");
        EXPECT_EQ(ShownRows(), (std::vector<RowTexts>{{"*.a.com", "True", each.status}}));
        EXPECT_EQ(Row(0).Image(), each.image);
    }
}

TEST_F(DomainListTest, ReadsAZoneOfAnyTypeAsANumberOfUpToFourBytes) {
    const std::pair<MemoryValue, const char*> values[] = {
        {{"", registryType::Binary, {2, 0, 0, 0}}, "Trusted"},
        {{"", registryType::Binary, {4}}, "Restricted"},
        {{"", registryType::None, {0, 1}}, "Unknown: 256"},
        {{"", registryType::Sz, {'2', 0}}, "Unknown: 50"},
        {{"", 0xFFFFFFFF, {2, 0, 0}}, "Trusted"},
    };
    Open();
    for (const auto& [value, status] : values) {
        MapRaw("a.com", "*", value.type, value.data);
        Click("cmdDomainRefresh");
        EXPECT_EQ(ColumnOf("lstvDomains", 2), RowTexts{status});
    }
}

TEST_F(DomainListTest, PassesOverAZoneOfNoBytesAndOfMoreThanFour) {
    Map("a.com", "http", 2);
    Open();
    const Bytes unread[] = {{}, {2, 0, 0, 0, 0}, Bytes(5000, 2), {'T', 'r', 'u', 's', 't'}};
    for (const Bytes& data : unread) {
        for (const std::uint32_t type :
             {registryType::Dword, registryType::Binary, registryType::Sz, registryType::Qword}) {
            MapRaw("a.com", "*", type, data);
            Click("cmdDomainRefresh");
            EXPECT_EQ(RowNames("lstvDomains"), RowTexts{"http://*.a.com"});
        }
    }
}

// ---- Rows

TEST_F(DomainListTest, ShowsADomainThatIsLiveAndHeldTwiceByItsPlainName) {
    Map("a.com", "*", 2);
    Machine().SetDword(Hive::CurrentUser, KeyOf("a.com", held::Domains), "http", 4);
    Open();
    EXPECT_EQ(ShownRows(), (std::vector<RowTexts>{{"*.a.com", "True", "Trusted"},
                                                  {"http://*.a.com", "False", "Restricted"}}));
    EXPECT_EQ(Row(0).Key(), "a.com");
    EXPECT_EQ(Row(1).Key(), "a.com");
    EXPECT_EQ(Row(1).TextColor(), DisabledColor);
}

TEST_F(DomainListTest, ShowsTheZoneOfAHeldDomainFromWhereItIsHeld) {
    Machine().SetDword(Hive::CurrentUser, KeyOf("a.com\\www", held::Domains), "ftp", 4);
    Open();
    EXPECT_EQ(ShownRows(), (std::vector<RowTexts>{{"ftp://www.a.com", "False", "Restricted"}}));
    EXPECT_EQ(Row(0).Image(), 2u);
}

TEST_F(DomainListTest, NeverSuspectsADomain) {
    SuspectClasses("a.com\r\n*.a.com");
    SuspectFiles("a.com");
    Map("a.com", "*", 4);
    Open();
    EXPECT_EQ(Row(0).TextColor(), std::nullopt);
    EXPECT_FALSE(Row(0).Bold());
}

TEST_F(DomainListTest, LooksOnAtADomainOfWhichOnlyTheSubkeyMayBeRead) {
    Map("a.com", "*", 2);
    Map("a.com\\www", "http", 4);
    Map("b.com", "*", 2);
    Machine().registry.Restrict(Hive::CurrentUser, KeyOf("a.com"), std::nullopt);
    Machine().registry.Restrict(Hive::CurrentUser, KeyOf("a.com\\www"), KeyAccess::Read);
    Open();
    EXPECT_EQ(RowNames("lstvDomains"), (RowTexts{"http://www.a.com", "*.b.com"}));
    EXPECT_EQ(Messages(), RowTexts());
}

// A user's map may hold thousands of domains.
TEST_F(DomainListTest, ShowsAMapOfThousands) {
    constexpr int Count = 3000;
    for (int i = 0; i < Count; ++i) Map("d" + std::to_string(i) + ".com", "*", 4);
    Open();
    EXPECT_EQ(List("lstvDomains").RowCount(), std::size_t{Count});
    EXPECT_EQ(Machine().registry.OpenKeyCount(), 0u);
}

}  // namespace
}  // namespace velkarix
