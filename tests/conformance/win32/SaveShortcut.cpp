#include "tests/conformance/win32/SaveShortcut.h"

#include <gtest/gtest.h>

#include "platform/win32/ComObjects.h"
#include "platform/win32/WideText.h"

// The header of the shell's objects needs the system's before it.
#include <shlobj.h>

namespace velkarix {

void SaveShortcut(const std::string& path, const Shortcut& shortcut) {
    const ComSession session;
    const auto link = CreateObject<IShellLinkA>(__uuidof(ShellLink));
    ASSERT_NE(link, nullptr);
    const auto file = QueryObject<IPersistFile>(*link);
    ASSERT_NE(file, nullptr);
    if (!shortcut.targetPath.empty()) {
        EXPECT_TRUE(SUCCEEDED(link->SetPath(shortcut.targetPath.c_str())));
    }
    if (!shortcut.arguments.empty()) {
        EXPECT_EQ(link->SetArguments(shortcut.arguments.c_str()), S_OK);
    }
    if (!shortcut.iconLocation.empty()) {
        const std::size_t comma = shortcut.iconLocation.rfind(',');
        const int index = std::stoi(shortcut.iconLocation.substr(comma + 1));
        EXPECT_EQ(link->SetIconLocation(shortcut.iconLocation.substr(0, comma).c_str(), index),
                  S_OK);
    }
    EXPECT_EQ(file->Save(ToWide(path).c_str(), TRUE), S_OK);
}

}  // namespace velkarix
