#include "browser/BrowserAddresses.h"

#include <gtest/gtest.h>

namespace velkarix {
namespace {

TEST(BrowserAddresses, JoinASiteAndAPath) {
    EXPECT_EQ((StockAddress{"http://site.example", "/a?b=%s"}.Text()),
              "http://site.example/a?b=%s");
    EXPECT_EQ((StockAddress{"", "About:Blank"}.Text()), "About:Blank");
}

TEST(BrowserAddresses, AreThoseOfTheMaker) {
    EXPECT_EQ(stockAddress::HomePage.Text(),
              "http://www.microsoft.com/isapi/redir.dll?prd=ie&pver=6&ar=msnhome");
    EXPECT_EQ(stockAddress::SearchPage.Text(),
              "http://www.microsoft.com/isapi/redir.dll?prd=ie&ar=iesearch");
    EXPECT_EQ(stockAddress::AutoSearch.Text(),
              "http://home.microsoft.com/access/autosearch.asp?p=%s");
    EXPECT_EQ(stockAddress::AllInOne.Text(), "http://home.microsoft.com/access/allinone.asp");
    EXPECT_EQ(stockAddress::SearchBar.Text(), "http://home.microsoft.com/search/lobby/search.asp");
    EXPECT_EQ(stockAddress::SearchAssistant.Text(),
              "http://ie.search.msn.com/{SUB_RFC1766}/srchasst/srchasst.htm");
    EXPECT_EQ(stockAddress::CustomizeSearch.Text(),
              "http://ie.search.msn.com/{SUB_RFC1766}/srchasst/srchcust.htm");
}

}  // namespace
}  // namespace velkarix
