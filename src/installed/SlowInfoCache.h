// The record that the system's own list of programs keeps of each program.
#pragma once

#include <optional>
#include <string>

#include "base/Bytes.h"

namespace velkarix {

// The path of the program's file, as UTF-16, from the value "SlowInfoCache" of the ARPCache key.
// Nothing when the record isn't 552 bytes long or says that it names no file.
//   offset 0: length of the record, 4 bytes; 4: whether a file is named; 8 to 27: size, last use
//   and how often; 28: the path, UTF-16 with a NUL behind it, 524 bytes of room
std::optional<std::u16string> FileOfSlowInfoCache(const Bytes& record);

}  // namespace velkarix
