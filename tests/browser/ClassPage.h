// A browser page of which one list is looked at that shows classes and their files.
#pragma once

#include <string>

#include "tests/browser/ScannedLists.h"

namespace velkarix {

inline constexpr const char* Md5OfAbcFile = "900150983cd24fb0d6963f7d28e17f72";
inline constexpr const char* LowerClassA = "{0a5e7c11-2f30-4b61-9d0a-6c1e5b7f0001}";

inline const RowTexts NoFacts = {"", "", "", "", ""};

inline const auto ClassScans =
    testing::Values(BHOScan, ToolbarScan, ButtonScan, ProtocolScan, HookScan);

class ClassPage : public ScannedListPage {
  protected:
    // Items of one class each; a button has it as its only file.
    void PutClass(const std::string& holder, const std::string& clsid) {
        PutNamed(Place().hive, holder, clsid, clsid);
        Machine().registry.RemoveValue(Place().hive, holder + "\\" + clsid, "Script");
    }
    void PutLiveClass(const std::string& clsid) { PutClass(Place().live, clsid); }
    void PutHeldClass(const std::string& clsid) { PutClass(Place().held, clsid); }
    std::size_t HashesComputed() { return Machine().Journal().CountOf("CryptCreateHash"); }
    // Size, created, company, product and description of a row.
    RowTexts FactsOf(const ListRow& row) {
        RowTexts facts;
        for (std::size_t i = 0; i < 5; ++i) facts.push_back(row.Text(Case().size + i));
        return facts;
    }
    std::string FolderAndFile(const ListRow& row) {
        return row.Text(Case().folder) + "|" + row.Text(Case().file);
    }
    std::size_t ImageCount() { return TheList().Images()->Count(); }
    std::string InprocKey(const std::string& clsid) {
        return "CLSID\\" + clsid + "\\InprocServer32";
    }
};

}  // namespace velkarix
