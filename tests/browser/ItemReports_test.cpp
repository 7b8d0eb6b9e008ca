// The reports of the browser page's lists, each compared whole.
#include <initializer_list>

#include "shell/Report.h"
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

// ---- The command, in every list

struct ReportCase {
    const ListCase* list;
    const char* nothing;
    const char* fileName;
    const char* title;
    const char* failure;
    bool (frmIE::*print)(const std::string&);
};

void PrintTo(const ReportCase& report, std::ostream* stream) {
    PrintTo(*report.list, stream);
}

const ReportCase AllReports[] = {
    {&BHOs, "No BHO to print", "IE BHO Report.txt",
     "IE BHO Report Generated by :", "Error Occurred BHO printReport: ", &frmIE::printReportBHO},
    {&Toolbars, "No Toolbar to print", "IE Toolbar Report.txt", "IE Toolbar Report Generated by :",
     "Error Occurred Toolbar printReport: ", &frmIE::printReportToolbar},
    {&Buttons, "No Button to print", "IE Toolbar Buttons Report.txt",
     "IE Toolbar Buttons Report Generated by :", "Error Occurred Button printReport: ",
     &frmIE::printReportButton},
    {&Menus, "No Menu to print", "IE Menu Report.txt",
     "IE Menu Report Generated by :", "Error Occurred Menu printReport: ", &frmIE::printReportMenu},
    {&Protocols, "No Protocol to print", "Protocol Report.txt",
     "Explorer Protocol Report Generated by :", "Error Occurred Protocol printReport: ",
     &frmIE::printReportProtocol},
    {&Domains, "No Domain to print", "IE Domain Report.txt", "IE Domain Report Generated by :",
     "Error Occurred Domain printReport: ", &frmIE::printReportDomain},
    {&Hooks, "No URL Search Hook to print", "IEURL SearchHooks Report.txt",
     "IE URL Search Hooks Report Generated by :", "Error Occurred Hook printReport: ",
     &frmIE::printReportHook},
};

class ItemReportCommand : public ItemListPage, public testing::WithParamInterface<ReportCase> {
  protected:
    void OpenWithARow() {
        PutClasses(Machine());
        Put(list, list.places[0], true, "A");
        Open();
    }
    std::string Text(const std::string& path) {
        return Machine().disk.ContentOf(path).value_or("(no file)");
    }
    const ListCase& list = *GetParam().list;
};

TEST_P(ItemReportCommand, SaysThatThereIsNothing) {
    Open();
    program.desktop.nextSaveFile = File;
    Click(list.report);
    EXPECT_EQ(Messages(), RowTexts{GetParam().nothing});
    EXPECT_EQ(program.desktop.messages[0].icon, MessageIcon::Information);
    EXPECT_EQ(program.desktop.messages[0].title, "Velkarix");
    EXPECT_TRUE(program.desktop.saveRequests.empty());
    EXPECT_EQ(Text(File), "(no file)");
}

TEST_P(ItemReportCommand, LeavesAFileAloneWhenTheUserCancels) {
    OpenWithARow();
    Machine().AddFile(File).Content("old");
    Click(list.report);
    ASSERT_EQ(program.desktop.saveRequests.size(), 1u);
    EXPECT_EQ(program.desktop.saveRequests[0].fileName, GetParam().fileName);
    EXPECT_EQ(program.desktop.saveRequests[0].filterName, "Text File (*.txt)");
    EXPECT_EQ(program.desktop.saveRequests[0].pattern, "*.txt");
    EXPECT_EQ(Text(File), "old");
    EXPECT_EQ(Messages(), RowTexts());
    EXPECT_TRUE(Machine().shell.Opened().empty());
}

TEST_P(ItemReportCommand, ReplacesTheFileByHeaderAndListAndOpensIt) {
    OpenWithARow();
    Machine().AddFile(File).Content("old");
    WriteReportHeader(program.application, "C:\\header.txt", GetParam().title);
    (Page().*GetParam().print)("C:\\list.txt");
    program.desktop.nextSaveFile = File;
    Click(list.report);
    EXPECT_EQ(Text(File), Text("C:\\header.txt") + Text("C:\\list.txt"));
    ASSERT_EQ(Machine().shell.Opened().size(), 1u);
    EXPECT_EQ(Machine().shell.Opened()[0], (ShellOpening{0, "Open", File, "", "", 1}));
}

TEST_P(ItemReportCommand, SaysWhyTheListCouldNotBeWrittenAndOpensTheFileAllTheSame) {
    OpenWithARow();
    WriteReportHeader(program.application, "C:\\header.txt", GetParam().title);
    program.desktop.nextSaveFile = File;
    Machine().disk.SetFreeBytes(Text("C:\\header.txt").size());
    Click(list.report);
    const std::string why = program.application.registry.GetSystemErrorText(error::HandleDiskFull);
    EXPECT_EQ(Messages(), RowTexts{GetParam().failure + ("\r\n" + why)});
    EXPECT_EQ(program.desktop.messages[0].icon, MessageIcon::Information);
    EXPECT_EQ(program.desktop.messages[0].title, "Velkarix");
    EXPECT_EQ(Text(File), Text("C:\\header.txt"));
    EXPECT_EQ(Machine().shell.Opened().size(), 1u);
}

INSTANTIATE_TEST_SUITE_P(EveryList, ItemReportCommand, testing::ValuesIn(AllReports),
                         [](const auto& test) { return std::string(test.param.list->list); });

}  // namespace
}  // namespace velkarix
