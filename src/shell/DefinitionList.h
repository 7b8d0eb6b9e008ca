// The definition lists, by which items are known as the system's own or as suspicious.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "platform/FileSystem.h"
#include "shell/FoldedText.h"
#include "shell/GramIndex.h"

namespace velkarix {

// The lines of one or more files, each behind a blank, in one text. Empty at first.
class DefinitionList {
  public:
    std::string_view Text() const { return folded_.Text(); }

    friend bool LoadDefinitionList(FileSystem& files, DefinitionList& target,
                                   const std::string& path);
    friend bool ListContains(const DefinitionList& list, std::string_view item);

  private:
    // False when the file can't be read to its end or there is no memory for it.
    bool ReadAll(FileSystem& files, FileHandle file, std::uint64_t length);

    FoldedText folded_;
    GramIndex index_;
};

// Appends the lines of a file. A missing or empty file leaves the list as it is; of a file that
// can't be read to its end the whole lines up to there are kept. False when there is a file that
// can't be opened or read to its end.
bool LoadDefinitionList(FileSystem& files, DefinitionList& target, const std::string& path);

// Whether `item` stands anywhere in the list's text, byte for byte; inside of an entry and across
// the blank between two entries as well. An empty item is in no list.
bool ListContains(const DefinitionList& list, std::string_view item);

}  // namespace velkarix
