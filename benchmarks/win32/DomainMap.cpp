#include "DomainMap.h"

namespace velkarix {

DomainMap::DomainMap(int domains) : hive_(Hive::CurrentUser, std::to_string(domains)) {
    HKEY live = OwnHive::Create(hive_.Root(), Live);
    for (int i = 0; i < domains; ++i) {
        const bool isForWww = i % 10 == 9;
        const std::string name = "domain" + std::to_string(100000 + i) + ".example";
        HKEY domain = OwnHive::Create(live, isForWww ? name + "\\www" : name);
        OwnHive::SetNumber(domain, isForWww ? "https" : "*", 4);
        RegCloseKey(domain);
    }
    RegCloseKey(live);
}

}  // namespace velkarix
