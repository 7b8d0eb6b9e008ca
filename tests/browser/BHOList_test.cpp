#include "browser/BHOList.h"

#include "tests/browser/BrowserPage.h"

namespace velkarix {
namespace {

class BHOListTest : public BrowserPage {
  protected:
    void PutLive(const std::string& clsid) { Put(live::BHOs, clsid); }
    void PutHeld(const std::string& clsid) { Put(held::BHOs, clsid); }
    std::vector<RowTexts> ShownRows() { return Rows("lstvBHO"); }

  private:
    void Put(const std::string& holder, const std::string& clsid) {
        AddKey(Hive::LocalMachine, holder + "\\" + clsid);
    }
};

TEST_F(BHOListTest, HasItsColumns) {
    Open();
    EXPECT_EQ(List("lstvBHO").Columns(),
              (RowTexts{"Class ID", "Enabled", "Description", "File Name", "Size (KB)",
                        "Created On", "Company Name", "Prodcut Name", "File Description", "Path"}));
}

TEST_F(BHOListTest, ShowsAnItemWithAllThatItsFileTells) {
    PutLive(ClassA);
    AddClass(ClassA, "C:\\Tools\\Lathe.dll", "Lathe helper")
        .Content(std::string(1536, 'x'))
        .Created(2003, 5, 7)
        .Version({{"CompanyName", "Sample Works"},
                  {"ProductName", "Sample Suite"},
                  {"FileDescription", "Drives the lathe"}});
    Open();
    EXPECT_EQ(ShownRows(),
              (std::vector<RowTexts>{{ClassA, "True", "Lathe helper", "Lathe.dll", "1.5",
                                      "05/07/2003", "Sample Works", "Sample Suite",
                                      "Drives the lathe", "C:\\Tools\\"}}));
}

TEST_F(BHOListTest, ShowsAnItemWhoseFileIsGoneByWhatTheRegistryTells) {
    PutHeld(ClassB);
    RegisterClass(ClassB, "C:\\Tools\\gone.dll", "Was here");
    Open();
    EXPECT_EQ(ShownRows(), (std::vector<RowTexts>{{ClassB, "False", "Was here", "gone.dll", "", "",
                                                   "", "", "", "C:\\Tools\\"}}));
}

TEST_F(BHOListTest, ShowsEverySubkeyAlsoOneThatIsNoClass) {
    PutLive("not a class");
    PutLive("{");
    Open();
    EXPECT_EQ(RowNames("lstvBHO"), (RowTexts{"not a class", "{"}));
}

TEST_F(BHOListTest, TakesOnlyKeysAndNoValues) {
    SetValue(Hive::LocalMachine, live::BHOs, ClassA, "x");
    SetValue(Hive::LocalMachine, live::BHOs, "", ClassB);
    Open();
    EXPECT_EQ(ShownRows(), std::vector<RowTexts>());
}

// What holds the items tells nothing but their names: the facts are of the class.
TEST_F(BHOListTest, TakesNoDescriptionFromTheItemItself) {
    SetValue(Hive::LocalMachine, live::BHOs + std::string("\\") + ClassA, "", "Own words");
    RegisterClass(ClassA, "", "Of the class");
    Open();
    EXPECT_EQ(ColumnOf("lstvBHO", 2), RowTexts{"Of the class"});
}

TEST_F(BHOListTest, KeepsTheSpellingThatTheRegistryHas) {
    PutLive("{0a5e7C11-2F30-4b61-9D0A-6C1E5B7F0001}");
    RegisterClass(ClassA, "C:\\gone.dll", "Found without regard to case");
    Open();
    EXPECT_EQ(RowNames("lstvBHO"), RowTexts{"{0a5e7C11-2F30-4b61-9D0A-6C1E5B7F0001}"});
    EXPECT_EQ(ColumnOf("lstvBHO", 2), RowTexts{"Found without regard to case"});
}

TEST_F(BHOListTest, KeepsTheFlagOfASuspiciousItemThatGoesOffAndOnAgain) {
    SuspectClasses("{0a5e7c11-2f30-4b61-9d0a-6c1e5b7f0001}");
    PutLive(ClassA);
    RegisterClass(ClassA, "C:\\gone.dll");
    Open();
    const auto colour = [this] { return RowNamed("lstvBHO", ClassA)->TextColor(); };
    EXPECT_EQ(colour(), SuspiciousColor);
    Tick("lstvBHO", ClassA);
    Click("cmdDisableBHO");
    EXPECT_EQ(colour(), SuspiciousDisabledColor);
    Tick("lstvBHO", ClassA);
    Click("cmdEnableBHO");
    EXPECT_EQ(colour(), SuspiciousColor);
}

}  // namespace
}  // namespace velkarix
