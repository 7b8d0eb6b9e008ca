#include "ActiveXKeys.h"

#include "Reports.h"

namespace velkarix::e2e {

ActiveXKeys::~ActiveXKeys() {
    RestoreKeys();
}

void ActiveXKeys::RestoreKeys() const {
    RestoreTree(HKEY_LOCAL_MACHINE, AllKeys, before_);
}

std::string ActiveXKeys::KeyOf(const std::string& name) {
    // As the program spells it in its messages.
    return "SOFTWARE\\Microsoft\\Internet Explorer\\ActiveX Compatibility\\" + name;
}

RegistryTree ActiveXKeys::ReadKeys() {
    return ReadTree(HKEY_LOCAL_MACHINE, AllKeys).value_or(RegistryTree());
}

RegistryTree ActiveXKeys::WithFlags(const std::vector<std::string>& names) const {
    RegistryTree tree = KeysBefore();
    for (const std::string& name : names) {
        tree.keys[name].values[FlagsValue] = {REG_DWORD, {0, 4, 0, 0}};
    }
    return tree;
}

std::vector<std::string> ActiveXKeys::ListedControls(const Install& install) {
    std::vector<std::string> names = Split(install.Read("MalActivex.scl"), "\r\n");
    std::erase(names, "");
    return names;
}

}  // namespace velkarix::e2e
