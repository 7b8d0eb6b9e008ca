#include "shell/GramIndex.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace velkarix {
namespace {

constexpr int HashBits = 32;
constexpr int FewestHeadBits = 8;
// More heads than this could be counted by entries no longer.
constexpr int MostHeadBits = 28;
// How many samples share a head before the heads are made anew. Fewer cost memory, and setting up
// memory is most of the cost of the index; more cost time in each question.
constexpr int SampleBitsPerHead = 2;

// Following a link costs about as much as a plain search does for this many bytes.
constexpr std::size_t BytesPerLink = 64;
constexpr std::size_t FewestLinks = 64;
constexpr std::size_t BytesComparedPerLink = 32;

std::uint32_t HashOf(const char* gram) {
    std::uint64_t bytes = 0;
    static_assert(sizeof bytes == GramIndex::GramSize);
    std::memcpy(&bytes, gram, sizeof bytes);
    return static_cast<std::uint32_t>((bytes * 0x9E3779B97F4A7C15u) >> HashBits);
}

// Whether `item` stands in `text` so that its gram at `offset` is the sample of this number.
bool StandsAt(std::string_view text, std::string_view item, std::size_t number,
              std::size_t offset) {
    if (number == 0) return false;
    const std::size_t position = (number - 1) * GramIndex::Step;
    return position >= offset && text.substr(position - offset, item.size()) == item;
}

}  // namespace

void GramIndex::Reserve(std::size_t textSize) {
    // When there is no memory for it now, Extend will try with what is really needed.
    MakeRoom(textSize / Step + 1);
}

bool GramIndex::MakeRoom(std::size_t samples) {
    // One more than there are samples, since their numbers begin at 1.
    const std::size_t links = sampleCount_ + 1;
    if (samples >= links_.Capacity() &&
        !links_.Grow(std::max(samples + 1, links + links / 2), headCount_ == 0 ? 0 : links)) {
        return false;
    }
    if (samples <= headCount_ << SampleBitsPerHead) return true;

    int bits = FewestHeadBits;
    while (bits <= MostHeadBits && samples >> SampleBitsPerHead >> bits != 0) ++bits;
    const std::size_t count = std::size_t{1} << bits;
    if (bits > MostHeadBits || !heads_.Grow(count, 0)) return false;
    std::fill_n(heads_.Data(), count, Entry{0});
    links_.Data()[0] = 0;
    headCount_ = count;
    headShift_ = HashBits - bits;
    numberBits_ = bits + SampleBitsPerHead + 1;
    sampleCount_ = 0;
    return true;
}

void GramIndex::Extend(std::string_view text) {
    const std::size_t samples = text.size() < GramSize ? 0 : (text.size() - GramSize) / Step + 1;
    if (!isComplete_ || samples <= sampleCount_) return;
    isComplete_ = MakeRoom(samples);
    if (!isComplete_) return;
    const char* gram = text.data() + sampleCount_ * Step;
    for (; sampleCount_ < samples; gram += Step) {
        const std::uint32_t hash = HashOf(gram);
        Entry& head = heads_.Data()[hash >> headShift_];
        links_.Data()[++sampleCount_] = head;
        head = hash << numberBits_ | static_cast<Entry>(sampleCount_);
    }
}

std::optional<bool> GramIndex::Contains(std::string_view text, std::string_view item) const {
    if (item.size() > text.size()) return false;
    if (!isComplete_ || item.size() < ShortestItem) return std::nullopt;

    // All chains are followed side by side: the memory is slow, and serves several questions at
    // once. The link of entry 0 leads to 0 again, so that a chain at its end needs no test.
    std::array<Entry, Step> tags;
    std::array<Entry, Step> entries;
    for (std::size_t offset = 0; offset < Step; ++offset) {
        const std::uint32_t hash = HashOf(item.data() + offset);
        tags[offset] = hash << numberBits_ >> numberBits_;
        entries[offset] = heads_.Data()[hash >> headShift_];
    }
    std::size_t linksLeft = FewestLinks + text.size() / BytesPerLink;
    for (Entry any = 1; any != 0;) {
        if (linksLeft < Step) return std::nullopt;
        linksLeft -= Step;
        any = 0;
        for (std::size_t offset = 0; offset < Step; ++offset) {
            const Entry entry = entries[offset];
            entries[offset] = links_.Data()[NumberOf(entry)];
            any |= entries[offset];
            if (entry >> numberBits_ != tags[offset]) continue;
            if (StandsAt(text, item, NumberOf(entry), offset)) return true;
            linksLeft -= std::min(linksLeft, item.size() / BytesComparedPerLink);
        }
    }
    return false;
}

}  // namespace velkarix
