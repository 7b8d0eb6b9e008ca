// What the URLs view shows, reads, offers, writes and reports, as data.
#pragma once

#include <variant>

#include "browser/BrowserAddresses.h"
#include "platform/Registry.h"

namespace velkarix {

struct RegistryPlace {
    Hive hive;
    const char* key;
    const char* valueName;  // empty: the key's default value
};

namespace urlKey {
inline constexpr const char* Main = "Software\\Microsoft\\Internet Explorer\\Main";
inline constexpr const char* Search = "Software\\Microsoft\\Internet Explorer\\Search";
inline constexpr const char* SearchURL = "Software\\Microsoft\\Internet Explorer\\SearchURL";
inline constexpr const char* DefaultPrefix =
    "Software\\microsoft\\Windows\\CurrentVersion\\URL\\DefaultPrefix";
inline constexpr const char* Prefixes =
    "Software\\microsoft\\Windows\\CurrentVersion\\URL\\Prefixes";
}  // namespace urlKey

// Of the machine.
namespace machineUrl {
inline constexpr RegistryPlace DefPrefix{Hive::LocalMachine, urlKey::DefaultPrefix, ""};
inline constexpr RegistryPlace wwwPrefix{Hive::LocalMachine, urlKey::Prefixes, "www"};
inline constexpr RegistryPlace HomePrefix{Hive::LocalMachine, urlKey::Prefixes, "home"};
inline constexpr RegistryPlace MosaicPrefix{Hive::LocalMachine, urlKey::Prefixes, "mosaic"};
inline constexpr RegistryPlace Customize{Hive::LocalMachine, urlKey::Search, "CustomizeSearch"};
inline constexpr RegistryPlace Assistant{Hive::LocalMachine, urlKey::Search, "SearchAssistant"};
inline constexpr RegistryPlace StartPage{Hive::LocalMachine, urlKey::Main, "Start Page"};
inline constexpr RegistryPlace SearchBar{Hive::LocalMachine, urlKey::Main, "Search Bar"};
inline constexpr RegistryPlace SearchPage{Hive::LocalMachine, urlKey::Main, "Search Page"};
inline constexpr RegistryPlace StockPage{Hive::LocalMachine, urlKey::Main, "Default_Page_URL"};
inline constexpr RegistryPlace StockSearch{Hive::LocalMachine, urlKey::Main, "Default_Search_URL"};
}  // namespace machineUrl

// Of the user.
namespace userUrl {
inline constexpr RegistryPlace StartPage{Hive::CurrentUser, urlKey::Main, "Start Page"};
inline constexpr RegistryPlace SearchBar{Hive::CurrentUser, urlKey::Main, "Search Bar"};
inline constexpr RegistryPlace SearchPage{Hive::CurrentUser, urlKey::Main, "Search Page"};
inline constexpr RegistryPlace SearchURL{Hive::CurrentUser, urlKey::SearchURL, ""};
}  // namespace userUrl

// The buttons that put stock addresses into the boxes.
enum class UrlButton {
    Blank,
    SearchURL,
    SearchPage,
    SearchBar,
    SearchAssistant,
    CustomizeSearch,
    DefPrefix
};

struct UrlButtonEntry {
    const char* name;
    const char* caption;
};

// In the order of UrlButton.
inline constexpr UrlButtonEntry UrlButtons[] = {
    {"cmdBlank", "Blank Page"},        {"cmdSearchURL", "Default"},
    {"cmdSearchPage", "Default"},      {"cmdSearchBar", "Default"},
    {"cmdSearchAssistant", "Default"}, {"cmdCustomizeSearch", "Default"},
    {"cmdDefPrefix", "Default"},
};

// In the order in which they are read.
enum class UrlBox {
    DefPrefix,
    wwwPrefix,
    HomePrefix,
    MosaicPrefix,
    CustomizeSearch,
    SEarchAssistant,
    StartPage,
    SearchBar,
    SearchPage,
    SearchURL
};

struct UrlBoxEntry {
    const char* name;
    const char* labelName;  // null: its frame says what it is
    const char* label;
    RegistryPlace place;  // where its value is read
    UrlButton button;     // puts `stock` into it
    StockAddress stock;
};

// In the order of UrlBox.
inline constexpr UrlBoxEntry UrlBoxes[] = {
    {"txtDefPrefix", "lblDefPrefix", "default:", machineUrl::DefPrefix, UrlButton::DefPrefix,
     stockAddress::Prefix},
    {"txtwwwPrefix", "lblwwwPrefix", "www:", machineUrl::wwwPrefix, UrlButton::DefPrefix,
     stockAddress::Prefix},
    {"txtHomePrefix", "lblHomePrefix", "home:", machineUrl::HomePrefix, UrlButton::DefPrefix,
     stockAddress::Prefix},
    {"txtMosaicPrefix", "lblMosaicPrefix", "mosaic:", machineUrl::MosaicPrefix,
     UrlButton::DefPrefix, stockAddress::Prefix},
    {"txtCustomizeSearch", "lblCustomizeSearch", "Customize Search:", machineUrl::Customize,
     UrlButton::CustomizeSearch, stockAddress::CustomizeSearch},
    {"txtSEarchAssistant", "lblSEarchAssistant", "Search Assistant:", machineUrl::Assistant,
     UrlButton::SearchAssistant, stockAddress::SearchAssistant},
    {"txtStartPage", nullptr, "Start Page", userUrl::StartPage, UrlButton::Blank,
     stockAddress::BlankPage},
    {"txtSearchBar", "lblSearchBar", "Search Bar:", userUrl::SearchBar, UrlButton::SearchBar,
     stockAddress::SearchBar},
    {"txtSearchPage", "lblSearchPage", "Search Page:", userUrl::SearchPage, UrlButton::SearchPage,
     stockAddress::AllInOne},
    {"txtSearchURL", "lblSearchURL", "Search URL:", userUrl::SearchURL, UrlButton::SearchURL,
     stockAddress::AutoSearch},
};

// A text that an apply writes: what a box holds, or a stock address.
struct UrlWrite {
    RegistryPlace place;
    std::variant<UrlBox, StockAddress> data;
};

// In the order of writing.
inline constexpr UrlWrite UrlWrites[] = {
    {machineUrl::DefPrefix, UrlBox::DefPrefix},
    {machineUrl::wwwPrefix, UrlBox::wwwPrefix},
    {machineUrl::HomePrefix, UrlBox::HomePrefix},
    {machineUrl::MosaicPrefix, UrlBox::MosaicPrefix},
    {machineUrl::Customize, UrlBox::CustomizeSearch},
    {machineUrl::Assistant, UrlBox::SEarchAssistant},
    {userUrl::StartPage, UrlBox::StartPage},
    {machineUrl::StartPage, UrlBox::StartPage},
    {userUrl::SearchBar, UrlBox::SearchBar},
    {machineUrl::SearchBar, UrlBox::SearchBar},
    {userUrl::SearchPage, UrlBox::SearchPage},
    {machineUrl::SearchPage, UrlBox::SearchPage},
    {userUrl::SearchURL, UrlBox::SearchURL},
    {machineUrl::StockPage, stockAddress::HomePage},
    {machineUrl::StockSearch, stockAddress::SearchPage},
};

struct UrlReportLine {
    const char* label;
    UrlBox box;
};

inline constexpr UrlReportLine UrlReport[] = {
    {"Start Page        : ", UrlBox::StartPage},
    {"Cust Search       : ", UrlBox::CustomizeSearch},
    {"Search Asst.      : ", UrlBox::SEarchAssistant},
    {"Search Page       : ", UrlBox::SearchPage},
    {"Search URL        : ", UrlBox::SearchURL},
    {"Search Bar        : ", UrlBox::SearchBar},
    {"Prefix def        : ", UrlBox::DefPrefix},
    {"Prefix www        : ", UrlBox::wwwPrefix},
    {"Prefix home       : ", UrlBox::HomePrefix},
    {"Prefix mosaic     : ", UrlBox::MosaicPrefix},
};

}  // namespace velkarix
