// An index over a long text that finds whether an item stands in it anywhere. Of the text's grams
// (runs of a few bytes) it knows those at every so many bytes; an item that is long enough covers
// one of these wherever it stands, so that looking for each of the item's own grams is enough.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "base/RawBuffer.h"

namespace velkarix {

class GramIndex {
  public:
    static constexpr std::size_t GramSize = 8;
    // Bytes from one known gram to the next. As large as it can be for items of 32 bytes, since a
    // file's MD5 is what is asked for most.
    static constexpr std::size_t Step = 25;
    static constexpr std::size_t ShortestItem = Step + GramSize - 1;

    // Prepares for a text of this many bytes, so that the index needn't be made anew as it grows.
    void Reserve(std::size_t textSize);
    // Takes in what was put behind the text since the last call. Without memory for it the index
    // answers nothing any more.
    void Extend(std::string_view text);

    // Whether `item` stands in `text`, which is what Extend got last. Nothing when the index can't
    // tell: the item is too short, or the text repeats itself so much that a plain search is as
    // good.
    std::optional<bool> Contains(std::string_view text, std::string_view item) const;

  private:
    // The number of a sample, counted from 1, in its low bits, and above them a tag of its gram;
    // 0 is none.
    using Entry = std::uint32_t;

    // False when there is no memory. New heads know no sample yet: sampleCount_ is 0 again then.
    bool MakeRoom(std::size_t samples);
    std::size_t NumberOf(Entry entry) const { return entry & ((Entry{1} << numberBits_) - 1); }

    RawBuffer<Entry> heads_;  // by the hash of a gram: the last sample that has this hash
    RawBuffer<Entry> links_;  // by a sample's number: the one before it with the same head
    std::size_t headCount_ = 0;
    int headShift_ = 0;
    int numberBits_ = 0;
    std::size_t sampleCount_ = 0;  // how many are linked
    bool isComplete_ = true;
};

}  // namespace velkarix
