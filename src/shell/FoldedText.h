// The lines of text files, folded into one text as they are read: each line behind one blank.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "base/RawBuffer.h"

namespace velkarix {

// A line ends at CR LF, at a lone CR or at a lone LF; what follows the last end is a line too
// when it isn't empty. All other bytes stay as they are.
class FoldedText {
  public:
    // Everything so far, also of a line whose end wasn't met yet.
    std::string_view Text() const { return {buffer_.Data(), size_}; }
    // The lines whose end was met.
    std::string_view WholeLines() const { return {buffer_.Data(), wholeSize_}; }

    // Makes room for a file of this many bytes. False when there is no memory.
    bool Reserve(std::size_t bytes);
    // Where to put the next bytes of the file, at least one and at most `bytes` of them; empty
    // when there is no memory. Fold takes what was put there.
    std::span<std::uint8_t> Room(std::size_t bytes);
    // Folds the `count` bytes that were put into the room asked for last.
    void Fold(std::size_t count);
    // The file has ended: what it had left is a whole line.
    void EndFile();
    // The file can't be read on: a line that it had begun isn't taken.
    void DropUnfinishedLine();

  private:
    void StartFile();

    RawBuffer<char> buffer_;
    std::size_t size_ = 0;
    std::size_t wholeSize_ = 0;
    bool atLineStart_ = true;
    bool afterCarriageReturn_ = false;
};

}  // namespace velkarix
