// The addresses that the browser is set up with by its maker, and the sites that they lie on.
#pragma once

#include <string>

namespace velkarix {

struct StockAddress {
    const char* site;  // empty when the path is the whole text
    const char* path;

    std::string Text() const { return std::string(site) + path; }
};

namespace stockAddress {

inline constexpr const char* MainSite = "http://www.microsoft.com";
inline constexpr const char* HomeSite = "http://home.microsoft.com";
inline constexpr const char* SearchSite = "http://ie.search.msn.com";

inline constexpr StockAddress HomePage{MainSite, "/isapi/redir.dll?prd=ie&pver=6&ar=msnhome"};
inline constexpr StockAddress SearchPage{MainSite, "/isapi/redir.dll?prd=ie&ar=iesearch"};
inline constexpr StockAddress AutoSearch{HomeSite, "/access/autosearch.asp?p=%s"};
inline constexpr StockAddress AllInOne{HomeSite, "/access/allinone.asp"};
inline constexpr StockAddress SearchBar{HomeSite, "/search/lobby/search.asp"};
// The browser puts the user's language in place of what stands in braces.
inline constexpr StockAddress SearchAssistant{SearchSite, "/{SUB_RFC1766}/srchasst/srchasst.htm"};
inline constexpr StockAddress CustomizeSearch{SearchSite, "/{SUB_RFC1766}/srchasst/srchcust.htm"};
inline constexpr StockAddress BlankPage{"", "About:Blank"};
inline constexpr StockAddress Prefix{"", "http://"};

}  // namespace stockAddress

}  // namespace velkarix
