// The system's objects take and give wide text on every Windows, the 95 family too.
#pragma once

#include <string>
#include <string_view>

namespace velkarix {

std::wstring ToWide(std::string_view text);
// A character that the code page lacks becomes its default one.
std::string ToAnsi(std::wstring_view text);

}  // namespace velkarix
