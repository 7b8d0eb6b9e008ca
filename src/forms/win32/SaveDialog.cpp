#include "forms/win32/SaveDialog.h"

#include <commdlg.h>

#include <cstddef>

#include "forms/win32/CommonDialogs.h"

namespace velkarix {

namespace {

constexpr std::size_t Capacity = 1024;  // bytes of a path, with its end

// "txt" of "*.txt"; a pattern that fits any ending gives none.
std::string ExtensionOf(const std::string& pattern) {
    const std::size_t dot = pattern.rfind('.');
    if (dot == std::string::npos) return {};
    const std::string extension = pattern.substr(dot + 1);
    return extension.find('*') == std::string::npos ? extension : std::string();
}

}  // namespace

std::optional<std::string> AskSavePath(HWND owner, const SaveRequest& request) {
    const std::string filter = request.filterName + '\0' + request.pattern + '\0';
    const std::string extension = ExtensionOf(request.pattern);
    std::string path = request.fileName;
    path.resize(Capacity - 1);

    OPENFILENAMEA dialog{};
    // What came with Windows 2000 stays off: older systems refuse a size that they don't know.
    dialog.lStructSize = OPENFILENAME_SIZE_VERSION_400A;
    dialog.hwndOwner = owner;
    dialog.lpstrFilter = filter.c_str();
    dialog.lpstrFile = path.data();
    dialog.nMaxFile = Capacity;
    if (!extension.empty()) dialog.lpstrDefExt = extension.c_str();
    dialog.Flags = OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY | OFN_PATHMUSTEXIST | OFN_NOCHANGEDIR;
    const auto call = CommonDialogs.Find<decltype(&::GetSaveFileNameA)>("GetSaveFileNameA");
    if (call == nullptr || call(&dialog) == FALSE) return std::nullopt;
    return std::string(path.c_str());
}

}  // namespace velkarix
