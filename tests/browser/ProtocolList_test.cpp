#include "browser/ProtocolList.h"

#include "tests/browser/BrowserPage.h"

namespace velkarix {
namespace {

class ProtocolListTest : public BrowserPage {
  protected:
    static std::string KeyOf(const char* holder, const std::string& name) {
        return holder + ("\\" + name);
    }
    void Put(const char* holder, const std::string& name, const std::string& clsid,
             const std::string& description = {}) {
        SetValue(Hive::ClassesRoot, KeyOf(holder, name), "CLSID", clsid);
        SetValue(Hive::ClassesRoot, KeyOf(holder, name), "", description);
    }
    std::vector<RowTexts> ShownRows() { return Rows("lstvProtocol"); }
    // Name, enabled and scope of each row.
    std::vector<RowTexts> States() {
        std::vector<RowTexts> states;
        for (const RowTexts& row : ShownRows()) states.push_back({row[0], row[2], row[3]});
        return states;
    }
};

TEST_F(ProtocolListTest, HasItsColumns) {
    Open();
    EXPECT_EQ(List("lstvProtocol").Columns(),
              (RowTexts{"Protocol", "Class ID", "Enabled", "Scope", "Description", "File Name",
                        "Size (KB)", "Created On", "Company Name", "Prodcut Name",
                        "File Description", "Path"}));
}

TEST_F(ProtocolListTest, ShowsAProtocolWithAllThatItsFileTells) {
    Put(live::Filters, "text/lathe", ClassA, "Lathe filter");
    AddClass(ClassA, "C:\\Tools\\Filter.dll", "Not the protocol's words")
        .Content(std::string(1536, 'x'))
        .Created(2003, 5, 7)
        .Version({{"CompanyName", "Sample Works"},
                  {"ProductName", "Sample Suite"},
                  {"FileDescription", "Drives the lathe"}});
    Open();
    EXPECT_EQ(ShownRows(),
              (std::vector<RowTexts>{{"text/lathe", ClassA, "True", "Filter", "Lathe filter",
                                      "Filter.dll", "1.5", "05/07/2003", "Sample Works",
                                      "Sample Suite", "Drives the lathe", "C:\\Tools\\"}}));
}

TEST_F(ProtocolListTest, ShowsAProtocolWhoseFileIsGoneByWhatTheRegistryTells) {
    Put(held::Handlers, "lathe", ClassA, "Lathe handler");
    RegisterClass(ClassA, "C:\\Tools\\gone.dll");
    Open();
    EXPECT_EQ(ShownRows(),
              (std::vector<RowTexts>{{"lathe", ClassA, "False", "Handler", "Lathe handler",
                                      "gone.dll", "", "", "", "", "", "C:\\Tools\\"}}));
}

TEST_F(ProtocolListTest, ListsFiltersBeforeHandlersAlsoOfTheHeld) {
    for (const char* holder : {held::Handlers, held::Filters, live::Handlers, live::Filters}) {
        Put(holder, "lathe", ClassA);
    }
    Open();
    EXPECT_EQ(States(), (std::vector<RowTexts>{{"lathe", "True", "Filter"},
                                               {"lathe", "True", "Handler"},
                                               {"lathe", "False", "Filter"},
                                               {"lathe", "False", "Handler"}}));
}

TEST_F(ProtocolListTest, HoldsProtocolsBelowTheClassesUnlikeAllOtherItems) {
    for (const Hive hive : {Hive::CurrentUser, Hive::LocalMachine}) {
        SetValue(hive, KeyOf(held::Filters, "lathe"), "CLSID", ClassA);
    }
    Open();
    EXPECT_EQ(States(), std::vector<RowTexts>());
}

TEST_F(ProtocolListTest, HidesAKeyWithoutAClassLiveOrHeld) {
    for (const char* holder : {live::Filters, live::Handlers, held::Filters, held::Handlers}) {
        AddKey(Hive::ClassesRoot, KeyOf(holder, "bare"));
        SetValue(Hive::ClassesRoot, KeyOf(holder, "described"), "", "Words");
        Put(holder, "empty", "");
        SetValue(Hive::ClassesRoot, KeyOf(holder, "nested\\CLSID"), "", ClassA);
    }
    Open();
    EXPECT_EQ(States(), std::vector<RowTexts>());
}

TEST_F(ProtocolListTest, TakesAClassOfAnyTypeUpToItsNul) {
    const std::string clsid = ClassA;
    Bytes bytes(clsid.begin(), clsid.end());
    AddClass(ClassA, "C:\\a.dll");
    Open();
    for (const std::uint32_t type :
         {registryType::Sz, registryType::ExpandSz, registryType::MultiSz, registryType::Binary,
          registryType::None, 0xFFFFFFFFu}) {
        for (const Bytes& tail : {Bytes{}, Bytes{0}, Bytes{0, 'x', 0, 0}}) {
            Bytes data = bytes;
            data.insert(data.end(), tail.begin(), tail.end());
            Machine().registry.SetRaw(Hive::ClassesRoot, KeyOf(live::Handlers, "lathe"), "CLSID",
                                      type, data);
            Click("cmdProtocolRefresh");
            ASSERT_EQ(List("lstvProtocol").RowCount(), 1u);
            EXPECT_EQ(ColumnOf("lstvProtocol", 1), RowTexts{ClassA});
            EXPECT_EQ(ColumnOf("lstvProtocol", 5), RowTexts{"a.dll"});
        }
    }
}

TEST_F(ProtocolListTest, HidesAKeyWhoseClassIsNothingOfAnyType) {
    Open();
    for (const std::uint32_t type : {registryType::Sz, registryType::Dword, registryType::None}) {
        for (const Bytes& data : {Bytes{}, Bytes{0}, Bytes{0, 0, 0, 1}}) {
            Machine().registry.SetRaw(Hive::ClassesRoot, KeyOf(live::Handlers, "lathe"), "CLSID",
                                      type, data);
            Click("cmdProtocolRefresh");
            EXPECT_EQ(States(), std::vector<RowTexts>());
        }
    }
}

TEST_F(ProtocolListTest, ShowsTheClassAsItIsStored) {
    Put(live::Handlers, "lathe", "{0a5e7C11-2F30-4b61-9D0A-6C1E5B7F0001}");
    Put(live::Handlers, "other", "no class");
    AddClass(ClassA, "C:\\a.dll");
    Open();
    EXPECT_EQ(ColumnOf("lstvProtocol", 1),
              (RowTexts{"{0a5e7C11-2F30-4b61-9D0A-6C1E5B7F0001}", "no class"}));
    EXPECT_EQ(ColumnOf("lstvProtocol", 5), (RowTexts{"a.dll", ""}));
}

TEST_F(ProtocolListTest, SuspectsAProtocolByItsClassAndNotByItsName) {
    SuspectClasses("{0a5e7c11-2f30-4b61-9d0a-6c1e5b7f0001}\r\nlathe");
    Put(live::Filters, "harmless", ClassA);
    Put(live::Filters, "lathe", ClassB);
    Open();
    EXPECT_EQ(RowNamed("lstvProtocol", "harmless")->TextColor(), SuspiciousColor);
    EXPECT_EQ(RowNamed("lstvProtocol", "lathe")->TextColor(), std::nullopt);
}

TEST_F(ProtocolListTest, HidesAProtocolThatMayNotBeRead) {
    Put(live::Filters, "closed", ClassA);
    Put(live::Filters, "open", ClassA);
    Machine().registry.Restrict(Hive::ClassesRoot, KeyOf(live::Filters, "closed"), std::nullopt);
    Open();
    EXPECT_EQ(RowNames("lstvProtocol"), RowTexts{"open"});
    EXPECT_EQ(Messages(), RowTexts());
}

}  // namespace
}  // namespace velkarix
