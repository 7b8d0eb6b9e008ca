// The browser page of a program on a machine in memory, with what its tests ask of it. A test puts
// its items into the registry, opens the page and looks at the rows.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "browser/frmIE.h"
#include "tests/machine/TestProgram.h"

namespace velkarix {

using RowTexts = std::vector<std::string>;

// Where the browser looks for its extensions, spelled as users' registries have it.
namespace live {
inline constexpr const char* BHOs =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects";
inline constexpr const char* Toolbars = "Software\\Microsoft\\Internet Explorer\\Toolbar";
inline constexpr const char* UserToolbars =
    "Software\\Microsoft\\Internet Explorer\\Toolbar\\WebBrowser";
inline constexpr const char* Buttons = "Software\\Microsoft\\Internet Explorer\\Extensions";
inline constexpr const char* Menus = "Software\\Microsoft\\Internet Explorer\\MenuExt";
inline constexpr const char* Filters = "Protocols\\Filter";
inline constexpr const char* Handlers = "Protocols\\Handler";
inline constexpr const char* Domains =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\Domains";
inline constexpr const char* Hooks = "Software\\Microsoft\\Internet Explorer\\URLSearchHooks";
}  // namespace live

// Where what is switched off lies, in the same hive.
namespace held {
inline constexpr const char* BHOs = "Software\\Velkarix\\Disabled\\BHO";
inline constexpr const char* Toolbars = "Software\\Velkarix\\Disabled\\Toolbar";
inline constexpr const char* Buttons = "Software\\Velkarix\\Disabled\\Buttons";
inline constexpr const char* Menus = "Software\\Velkarix\\Disabled\\Menu";
inline constexpr const char* Filters = "Software\\Velkarix\\Disabled\\Protocols\\Filter";
inline constexpr const char* Handlers = "Software\\Velkarix\\Disabled\\Protocols\\Handler";
inline constexpr const char* Domains = "Software\\Velkarix\\Disabled\\Domains";
inline constexpr const char* Hooks = "Software\\Velkarix\\Disabled\\Hooks";
}  // namespace held

// Some classes, in the order of their names.
inline constexpr const char* ClassA = "{0A5E7C11-2F30-4B61-9D0A-6C1E5B7F0001}";
inline constexpr const char* ClassB = "{1B5E7C11-2F30-4B61-9D0A-6C1E5B7F0002}";
inline constexpr const char* ClassC = "{2C5E7C11-2F30-4B61-9D0A-6C1E5B7F0003}";
inline constexpr const char* ClassD = "{3D5E7C11-2F30-4B61-9D0A-6C1E5B7F0004}";

// The colours of the marks, as they are without settings.
inline constexpr Color SuspiciousColor = 255;
inline constexpr Color DisabledColor = 8421504;
inline constexpr Color SuspiciousDisabledColor = 64;

class BrowserPage : public testing::Test {
  protected:
    // Starts the program and enters the page.
    void Open() {
        program.Start();
        program.Get<Button>("frmMain", "cmdIE").Raise("Click");
    }
    frmIE& Page() { return static_cast<frmIE&>(*program.application.forms.Loaded("frmIE")); }
    ListView& List(const std::string& name) { return program.Get<ListView>("frmIE", name); }
    bool Enabled(const std::string& control) { return Page().Find(control)->Enabled(); }
    bool Click(const std::string& control) { return Page().Find(control)->Raise("Click"); }

    // ---- What is on the machine

    MemoryMachine& Machine() { return program.machine; }
    // An item that is a key, or a value with a text.
    void AddKey(Hive hive, const std::string& key) { Machine().AddKey(hive, key); }
    void SetValue(Hive hive, const std::string& key, const std::string& name,
                  const std::string& text = {}) {
        Machine().SetValue(hive, key, name, text);
    }
    // The registration of a class whose file is or isn't there.
    void RegisterClass(const std::string& clsid, const std::string& path,
                       const std::string& description = {}) {
        SetValue(Hive::ClassesRoot, "CLSID\\" + clsid, "", description);
        SetValue(Hive::ClassesRoot, "CLSID\\" + clsid + "\\InprocServer32", "", path);
    }
    // The same with its file.
    MemoryEntry& AddClass(const std::string& clsid, const std::string& path,
                          const std::string& description = {}) {
        RegisterClass(clsid, path, description);
        return Machine().AddFile(path);
    }
    // Before the program starts: what the definition lists know.
    void SuspectClasses(const std::string& lines) {
        program.AddInstalledFile("SusCLSID.vkl").Content(lines);
    }
    void SuspectFiles(const std::string& lines) {
        program.AddInstalledFile("SusProcess.vkl").Content(lines);
    }

    // ---- What is shown

    static RowTexts Texts(const ListRow& row, std::size_t columns) {
        RowTexts texts;
        for (std::size_t column = 0; column < columns; ++column) texts.push_back(row.Text(column));
        return texts;
    }
    // The rows in the shown order, each with all its columns.
    std::vector<RowTexts> Rows(const std::string& list) {
        ListView& view = List(list);
        std::vector<RowTexts> rows;
        for (std::size_t i = 0; i < view.RowCount(); ++i) {
            rows.push_back(Texts(view.Row(i), view.Columns().size()));
        }
        return rows;
    }
    // One column of each row.
    RowTexts ColumnOf(const std::string& list, std::size_t column) {
        RowTexts texts;
        for (const RowTexts& row : Rows(list)) texts.push_back(row.at(column));
        return texts;
    }
    RowTexts RowNames(const std::string& list) { return ColumnOf(list, 0); }
    // The first row of that name; null when there is none.
    ListRow* RowNamed(const std::string& list, const std::string& name) {
        ListView& view = List(list);
        for (std::size_t i = 0; i < view.RowCount(); ++i) {
            if (view.Row(i).Text(0) == name) return &view.Row(i);
        }
        return nullptr;
    }
    // Ticks a row as a user would.
    void Tick(const std::string& list, const std::string& name) {
        List(list).UserCheck(*RowNamed(list, name), true);
    }
    void Tick(const std::string& list, std::size_t row) {
        List(list).UserCheck(List(list).Row(row), true);
    }
    // The texts of the message boxes so far.
    RowTexts Messages() {
        RowTexts texts;
        for (const Message& message : program.desktop.messages) texts.push_back(message.text);
        return texts;
    }

    TestProgram program;
};

}  // namespace velkarix
