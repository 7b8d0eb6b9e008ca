#include "BrowserRows.h"

#include <map>

#include "Samples.h"
#include "Setup.h"

namespace velkarix::e2e {

namespace {

using enum Mark;
using Rows = std::vector<BrowserRow>;

const std::string Snoop = SamplePath("SampleSnoop.dll");

// A row that shows a file: its texts before the file's name, the facts, and the folder.
BrowserRow FileRow(RowTexts texts, const std::string& path, Mark mark = None) {
    const std::size_t slash = path.rfind('\\');
    const std::size_t name = slash == std::string::npos ? 0 : slash + 1;
    texts.push_back(path.substr(name));
    for (const std::string& fact : ShownFacts(path)) texts.push_back(fact);
    texts.push_back(path.substr(0, name));
    return {texts, mark, path};
}

Rows BHORows() {
    const auto row = [](const char* digits, const char* enabled, const char* description,
                        const std::string& path, Mark mark = None) {
        return FileRow({Clsid(digits), enabled, description}, path, mark);
    };
    const std::string helper = SamplePath("SampleHelper.dll");
    return {
        row("0B100001", "True", "Sample Link Helper", helper),
        row("0B100002", "True", "Sample Search Companion", Snoop, Suspicious),
        row("0B100004", "True", "Sample Form Filler", "\"" + helper + "\""),
        row("0B100005", "True", "Sample Page Saver", helper + " /embedding"),
        row("0B100006", "True", "Sample Bookmarks",
            "C:\\Program Files\\Sample Bookmarks\\Bookmarks.dll"),
        row("0B100007", "True", "", ""),
        row("0B100008", "True", "Sample System Helper", SystemSamplePath()),
        row("0B1000C3", "True", "Sample Page Tracker", SamplePath("SampleTracker.dll"), Suspicious),
        row("0B100011", "False", "Sample Download Manager", helper, Disabled),
        row("0B100012", "False", "Sample Price Compare", Snoop, SuspiciousAndDisabled),
    };
}

Rows ToolbarRows() {
    const auto row = [](const char* digits, const char* enabled, const char* scope,
                        const char* description, const std::string& path, Mark mark = None) {
        return FileRow({Clsid(digits), enabled, scope, description}, path, mark);
    };
    const std::string toolbar = SamplePath("SampleToolbar.dll");
    return {
        row("7B000001", "True", "All Users", "Sample &Toolbar", toolbar),
        row("7B000002", "True", "All Users", "Sample Search Bar", Snoop, Suspicious),
        row("7B000003", "True", "All Users", "Sample Links", "SampleLinks.dll"),
        row("7B000001", "True", "Current User", "Sample &Toolbar", toolbar),
        row("7B000004", "True", "Current User", "Sample Radio",
            "C:\\Program Files\\Sample Radio\\Radio.dll"),
        row("7B000012", "False", "Current User", "Sample Coupons", Snoop, SuspiciousAndDisabled),
        row("7B000011", "False", "All Users", "Sample News Bar", toolbar, Disabled),
    };
}

Rows ButtonRows() {
    const auto row = [](const char* digits, const char* enabled, const char* scope,
                        const char* text, const std::string& path, Mark mark = None) {
        return FileRow({Clsid(digits), enabled, scope, text}, path, mark);
    };
    const std::string idle = SamplePath("SampleIdle.exe");
    return {
        row("B0770001", "True", "All Users", "Sample Organiser", idle),
        row("B0770002", "True", "All Users", "Sample Notes", SamplePath("SampleButton.dll")),
        row("B0770003", "True", "All Users", "Sample Casino", Snoop, Suspicious),
        row("B0770004", "True", "All Users", "Sample Chat",
            "C:\\Program Files\\Sample Chat\\chat.htm"),
        row("B0770006", "True", "Current User", "Sample Text", SystemSamplePath()),
        row("B0770011", "False", "All Users", "Sample Printer", idle, Disabled),
        row("B0770012", "False", "Current User", "Sample Dialler", SamplePath("SampleSuspect.exe"),
            SuspiciousAndDisabled),
    };
}

Rows MenuRows() {
    const std::string page = SamplePath("SampleMenu.htm");
    return {
        {{"&Sample Search", "True", "All Users", page}},
        {{"Translate with Sample", "True", "All Users",
          "res://" + SamplePath("SampleToolbar.dll/translate.htm")}},
        {{"&Sample Search", "True", "Current User", "http://search.sample.example/menu.htm"}},
        {{"Highlight & Mark", "True", "Current User", "file://" + page}},
        {{"Save with Sample", "False", "Current User", "C:\\Program Files\\Sample Saver\\save.htm"},
         Disabled},
        {{"Zoom &In", "False", "All Users", page}, Disabled},
    };
}

Rows ProtocolRows() {
    const auto row = [](const char* name, const char* digits, const char* enabled,
                        const char* scope, const char* description, const std::string& path,
                        Mark mark = None) {
        return FileRow({name, Clsid(digits), enabled, scope, description}, path, mark);
    };
    const std::string protocol = SamplePath("SampleProtocol.dll");
    return {
        row("sample", "90700002", "True", "Filter", "Sample Filter", protocol),
        row("text/x-sample", "90700001", "True", "Filter", "Sample Text Filter",
            SystemSamplePath()),
        row("sample", "90700002", "True", "Handler", "sample: Pluggable Protocol", protocol),
        row("sample-ads", "90700003", "True", "Handler", "sample-ads: Pluggable Protocol", Snoop,
            Suspicious),
        row("sample-file", "90700004", "True", "Handler", "", ""),
        row("text/x-sample-old", "90700011", "False", "Filter", "Sample Old Filter", protocol,
            Disabled),
        row("sample-track", "0B1000C3", "False", "Handler", "sample-track: Pluggable Protocol",
            SamplePath("SampleTracker.dll"), SuspiciousAndDisabled),
    };
}

Rows DomainRows() {
    return {
        {{"*.ads.example", "True", "Restricted"}},
        {{"http://*.bank.example", "True", "Trusted"}},
        {{"ftp://*.files.example", "True", "Unknown: 3"}},
        {{"*.office.example", "True", "Unknown: 1"}},
        {{"https://*.shop.example", "True", "Trusted"}},
        {{"https://www.tracker.example", "True", "Restricted"}},
        {{"*.casino.example", "False", "Restricted"}, Disabled},
        {{"http://www.news.example", "False", "Trusted"}, Disabled},
    };
}

Rows HookRows() {
    const auto row = [](const char* digits, const char* enabled, const char* description,
                        const std::string& path, Mark mark = None) {
        return FileRow({Clsid(digits), enabled, description}, path, mark);
    };
    const std::string hook = SamplePath("SampleHook.dll");
    return {
        row("400C0001", "True", "Sample Search Hook", hook),
        row("400C0002", "True", "Sample Address Helper", Snoop, Suspicious),
        row("400C0003", "True", "", ""),
        row("0B1000C3", "False", "Sample Page Tracker", SamplePath("SampleTracker.dll"),
            SuspiciousAndDisabled),
        row("400C0011", "False", "Sample Typo Finder", hook, Disabled),
    };
}

struct Expected {
    std::vector<std::string> columns;
    Rows (*rows)();
};

const std::map<const BrowserList*, Expected> Lists = {
    {&BHOs,
     {{"Class ID", "Enabled", "Description", "File Name", "Size (KB)", "Created On", "Company Name",
       "Prodcut Name", "File Description", "Path"},
      BHORows}},
    {&Toolbars,
     {{"Class ID", "Enabled", "Scope", "Description", "File Name", "Size (KB)", "Created On",
       "Company Name", "Prodcut Name", "File Description", "Path"},
      ToolbarRows}},
    {&Buttons,
     {{"Class ID", "Enabled", "Scope", "Button Text", "File Name", "Size (KB)", "Created On",
       "Company Name", "Prodcut Name", "File Description", "Path"},
      ButtonRows}},
    {&Menus, {{"Menu", "Enabled", "Scope", "Path"}, MenuRows}},
    {&Protocols,
     {{"Protocol", "Class ID", "Enabled", "Scope", "Description", "File Name", "Size (KB)",
       "Created On", "Company Name", "Prodcut Name", "File Description", "Path"},
      ProtocolRows}},
    {&Domains, {{"Name", "Enabled", "Status"}, DomainRows}},
    {&Hooks,
     {{"Class ID", "Enabled", "Description", "File Name", "Size (KB)", "Created On", "Company Name",
       "Prodcut Name", "File Description", "Path"},
      HookRows}},
};

}  // namespace

const std::vector<std::string>& ColumnsOf(const BrowserList& list) {
    return Lists.at(&list).columns;
}

std::vector<BrowserRow> RowsOf(const BrowserList& list) {
    return Lists.at(&list).rows();
}

}  // namespace velkarix::e2e
