// The reports of the browser page's lists, each compared whole.
#include <initializer_list>

#include "tests/browser/ItemLists.h"

namespace velkarix {
namespace {

constexpr const char* File = "C:\\report.txt";

std::string Lines(std::initializer_list<std::string> lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\r\n";
    return text;
}

// The version block of a file with all facts, and of none.
const std::string FullBlock = Lines({
    "Product Name      : Suite",
    "Product Version   : 9.0",
    "File Description  : Does things",
    "File Version      : 1.2.3",
    "Internal Name     : inner",
    "Original Filename : orig.dll",
    "Comments          : none",
    "Company Name      : Works",
    "Legal Copyright   : (c) Works",
    "Legal Trademarks  : tm",
    "Private Build     : p1",
    "Special Build     : s2",
});
const std::string EmptyBlock = Lines({
    "Product Name      : ",
    "Product Version   : ",
    "File Description  : ",
    "File Version      : ",
    "Internal Name     : ",
    "Original Filename : ",
    "Comments          : ",
    "Company Name      : ",
    "Legal Copyright   : ",
    "Legal Trademarks  : ",
    "Private Build     : ",
    "Special Build     : ",
});

class ItemReports : public ItemListPage {
  protected:
    // Class A has a file with all facts and is suspicious; class B has a file that is gone.
    ItemReports() {
        AddClass(ClassA, "C:\\Tools\\a.dll", "About A")
            .Content(std::string(1536, 'x'))
            .Created(2003, 5, 7)
            .Version({{"ProductName", "Suite"},
                      {"ProductVersion", "9.0"},
                      {"FileDescription", "Does things"},
                      {"FileVersion", "1.2.3"},
                      {"InternalName", "inner"},
                      {"OriginalFilename", "orig.dll"},
                      {"Comments", "none"},
                      {"CompanyName", "Works"},
                      {"LegalCopyright", "(c) Works"},
                      {"LegalTrademarks", "tm"},
                      {"PrivateBuild", "p1"},
                      {"SpecialBuild", "s2"}});
        RegisterClass(ClassB, "C:\\Gone\\b.dll", "About B");
        std::string suspicious = ClassA;
        for (char& c : suspicious) c = static_cast<char>(std::tolower(c));
        SuspectClasses(suspicious);
    }
    void PutButton(Hive hive, const char* holder, const char* clsid, const char* text) {
        const std::string key = std::string(holder) + "\\" + clsid;
        SetValue(hive, key, "ClsidExtension", clsid);
        SetValue(hive, key, "Script", std::string("C:\\Gone\\") + "b.dll");
        SetValue(hive, key, "ButtonText", text);
    }
    // What the page's printer writes into a new file.
    std::string Printed(bool (frmIE::*print)(const std::string&)) {
        Machine().disk.Remove(File);
        EXPECT_TRUE((Page().*print)(File));
        return Machine().disk.ContentOf(File).value_or("(no file)");
    }
};

const std::string SizeAndFacts = Lines({
    "Size (Kb)         : 1.5",
    "Created on        : 05/07/2003",
    "Company Name      : Works",
    "Product Name      : Suite",
    "Description       : Does things",
    "Path              : C:\\Tools\\",
});
const std::string NoFacts = Lines({
    "Size (Kb)         : ",
    "Created on        : ",
    "Company Name      : ",
    "Product Name      : ",
    "Description       : ",
    "Path              : C:\\Gone\\",
});

// Yes and No, and no line for the description of the class.
TEST_F(ItemReports, OfBHOs) {
    AddKey(Hive::LocalMachine, std::string(live::BHOs) + "\\" + ClassA);
    AddKey(Hive::LocalMachine, std::string(held::BHOs) + "\\" + ClassB);
    Open();
    EXPECT_EQ(Printed(&frmIE::printReportBHO),
              Lines({std::string("BHO CLSID         : ") + ClassA + " *******[Risk]*******",
                     "Enabled           : Yes", "File Name         : a.dll"}) +
                  SizeAndFacts + FullBlock + "\r\n" +
                  Lines({std::string("BHO CLSID         : ") + ClassB, "Enabled           : No",
                         "File Name         : b.dll"}) +
                  NoFacts + EmptyBlock);
}

// True and False, with scope and description.
TEST_F(ItemReports, OfToolbars) {
    SetValue(Hive::LocalMachine, live::Toolbars, ClassA);
    SetValue(Hive::CurrentUser, held::Toolbars, ClassB);
    Open();
    EXPECT_EQ(Printed(&frmIE::printReportToolbar),
              Lines({std::string("Toolbar CLSID     : ") + ClassA + " *******[Risk]*******",
                     "Enabled           : True", "Scope             : All Users",
                     "Description       : About A", "File Name         : a.dll"}) +
                  SizeAndFacts + FullBlock + "\r\n" +
                  Lines({std::string("Toolbar CLSID     : ") + ClassB, "Enabled           : False",
                         "Scope             : Current User", "Description       : About B",
                         "File Name         : b.dll"}) +
                  NoFacts + EmptyBlock);
}

// A shorter first label without the mark, and a version block of no file.
TEST_F(ItemReports, OfToolbarButtons) {
    PutButton(Hive::LocalMachine, live::Buttons, ClassA, "Go");
    PutButton(Hive::CurrentUser, held::Buttons, ClassB, "Come");
    Open();
    EXPECT_EQ(Printed(&frmIE::printReportButton),
              Lines({std::string("Button CLSID      : ") + ClassA + " *******[Risk]*******",
                     "Enabled           : True", "Scope             : All Users",
                     "Button Text       : Go", "File Name         : a.dll"}) +
                  SizeAndFacts + EmptyBlock + "\r\n" +
                  Lines({std::string("Button CLSID : ") + ClassB, "Enabled           : False",
                         "Scope             : Current User", "Button Text       : Come",
                         "File Name         : b.dll"}) +
                  NoFacts + EmptyBlock);
}

// Description and text of a button, joined, name the file of its version block where there is one.
TEST_F(ItemReports, OfToolbarButtonsReadTheFileThatOtherColumnsName) {
    Machine().AddFile("C:\\Tools\\a.dll").Version({{"FileDescription", "C:\\Odd\\"}});
    Machine().AddFile("C:\\Odd\\Go").Version({{"ProductName", "Of another file"}});
    PutButton(Hive::LocalMachine, live::Buttons, ClassA, "Go");
    Open();
    EXPECT_NE(Printed(&frmIE::printReportButton).find("Product Name      : Of another file\r\n"),
              std::string::npos);
}

// Four narrow lines without a mark.
TEST_F(ItemReports, OfMenus) {
    SetValue(Hive::LocalMachine, std::string(live::Menus) + "\\&Send", "", "C:\\Tools\\a.dll");
    SetValue(Hive::CurrentUser, std::string(held::Menus) + "\\&Keep", "", "res://b.dll/1");
    Open();
    EXPECT_EQ(Printed(&frmIE::printReportMenu),
              Lines({"Menu         : &Send", "Enabled      : True", "Scope        : All Users",
                     "Path         : C:\\Tools\\a.dll", "", "Menu         : &Keep",
                     "Enabled      : False", "Scope        : Current User",
                     "Path         : res://b.dll/1"}));
}

TEST_F(ItemReports, OfProtocols) {
    const std::string filter = std::string(live::Filters) + "\\text/x";
    SetValue(Hive::ClassesRoot, filter, "CLSID", ClassA);
    SetValue(Hive::ClassesRoot, filter, "", "Filters X");
    SetValue(Hive::ClassesRoot, std::string(held::Handlers) + "\\y", "CLSID", ClassB);
    Open();
    EXPECT_EQ(Printed(&frmIE::printReportProtocol),
              Lines({"Protocol          : text/x *******[Risk]*******",
                     std::string("CLSID             : ") + ClassA, "Enabled           : Yes",
                     "Scope             : Filter", "Description       : Filters X",
                     "File Name         : a.dll"}) +
                  SizeAndFacts + FullBlock + "\r\n" +
                  Lines({"Protocol          : y", std::string("CLSID             : ") + ClassB,
                         "Enabled           : No", "Scope             : Handler",
                         "Description       : ", "File Name         : b.dll"}) +
                  NoFacts + EmptyBlock);
}

// True and False as they stand.
TEST_F(ItemReports, OfDomains) {
    Machine().SetDword(Hive::CurrentUser, std::string(live::Domains) + "\\a.example", "http", 2);
    Machine().SetDword(Hive::CurrentUser, std::string(held::Domains) + "\\b.example", "*", 3);
    Open();
    EXPECT_EQ(Printed(&frmIE::printReportDomain),
              Lines({"Domain            : http://*.a.example", "Enabled           : True",
                     "Status            : Trusted", "", "Domain            : *.b.example",
                     "Enabled           : False", "Status            : Unknown: 3"}));
}

// Yes and No, and no line for the description of the class.
TEST_F(ItemReports, OfHooks) {
    SetValue(Hive::CurrentUser, live::Hooks, ClassA);
    SetValue(Hive::CurrentUser, held::Hooks, ClassB);
    Open();
    EXPECT_EQ(Printed(&frmIE::printReportHook),
              Lines({std::string("Search Hook CLSID : ") + ClassA + " *******[Risk]*******",
                     "Enabled           : Yes", "File Name         : a.dll"}) +
                  SizeAndFacts + FullBlock + "\r\n" +
                  Lines({std::string("Search Hook CLSID : ") + ClassB, "Enabled           : No",
                         "File Name         : b.dll"}) +
                  NoFacts + EmptyBlock);
}

TEST_F(ItemReports, MarkNoRowThatIsSuspiciousAndOff) {
    AddKey(Hive::LocalMachine, std::string(held::BHOs) + "\\" + ClassA);
    Open();
    EXPECT_EQ(RowNamed("lstvBHO", ClassA)->TextColor(), SuspiciousDisabledColor);
    EXPECT_TRUE(Printed(&frmIE::printReportBHO)
                    .starts_with(std::string("BHO CLSID         : ") + ClassA + "\r\n"));
}

TEST_F(ItemReports, ReadTheFileAsItIsNow) {
    AddKey(Hive::LocalMachine, std::string(live::BHOs) + "\\" + ClassA);
    Open();
    Machine().disk.Remove("C:\\Tools\\a.dll");
    const std::string text = Printed(&frmIE::printReportBHO);
    EXPECT_NE(text.find(SizeAndFacts + EmptyBlock), std::string::npos) << text;
}

TEST_F(ItemReports, FollowTheOrderOnTheScreen) {
    for (const char* domain : {"a", "b"}) {
        const std::string key = std::string(live::Domains) + "\\" + domain;
        Machine().SetDword(Hive::CurrentUser, key, "*", 2);
    }
    Open();
    List("lstvDomains").UserColumnClick(1);
    const std::string text = Printed(&frmIE::printReportDomain);
    EXPECT_LT(text.find("*.b"), text.find("*.a"));
}

}  // namespace
}  // namespace velkarix
