#include "shell/FoldedText.h"

#include <algorithm>
#include <cstring>

namespace velkarix {
namespace {

// A machine word, to look at several bytes at once.
using Word = std::size_t;
constexpr std::size_t WordsAtOnce = 4;

// Line ends are below this, and hardly anything else is.
constexpr unsigned char ControlEnd = 0x10;
constexpr Word Ones = ~Word{0} / 0xFF;

// Not 0 when a byte of `word` is below ControlEnd.
Word ControlBytes(Word word) {
    return (word - Ones * ControlEnd) & ~word & (Ones * 0x80);
}

bool IsControl(char c) {
    return static_cast<unsigned char>(c) < ControlEnd;
}

// What is still to be folded, and where it goes. Handed on by value, so that it stays in registers.
struct Cursor {
    const char* source;
    const char* end;
    char* target;

    bool AtEnd() const { return source == end; }
};

// Moves the words at the source up to one that holds a control byte. The target lies before the
// source, so each word is read before it is overwritten.
template <std::size_t Count>
Cursor MoveWords(Cursor at) {
    Word words[Count];
    while (static_cast<std::size_t>(at.end - at.source) >= sizeof words) {
        std::memcpy(words, at.source, sizeof words);
        Word control = 0;
        for (const Word word : words) control |= ControlBytes(word);
        if (control != 0) break;
        std::memcpy(at.target, words, sizeof words);
        at.source += sizeof words;
        at.target += sizeof words;
        if (!at.AtEnd() && IsControl(*at.source)) break;
    }
    return at;
}

// Moves the rest of a line, up to its end or that of the source.
Cursor MoveLine(Cursor at) {
    while (!at.AtEnd() && *at.source != '\r' && *at.source != '\n') {
        if (!IsControl(*at.source)) at = MoveWords<WordsAtOnce>(at);
        if (!at.AtEnd() && !IsControl(*at.source)) at = MoveWords<1>(at);
        if (!at.AtEnd() && *at.source != '\r' && *at.source != '\n') *at.target++ = *at.source++;
    }
    return at;
}

}  // namespace

bool FoldedText::Reserve(std::size_t bytes) {
    // One byte for the blank before the first line, by which a file can become longer, and one
    // for seeing that nothing follows the last.
    return bytes < SIZE_MAX - size_ - 1 && buffer_.Grow(size_ + bytes + 2, size_);
}

std::span<std::uint8_t> FoldedText::Room(std::size_t bytes) {
    if (buffer_.Capacity() < size_ + 2 && !Reserve(bytes + size_ / 2) && !Reserve(bytes)) return {};
    const std::size_t left = buffer_.Capacity() - size_ - 1;
    return {reinterpret_cast<std::uint8_t*>(buffer_.Data() + size_ + 1), std::min(bytes, left)};
}

void FoldedText::Fold(std::size_t count) {
    char* const text = buffer_.Data() + size_;
    Cursor at{text + 1, text + 1 + count, text};
    while (!at.AtEnd()) {
        if (afterCarriageReturn_ && *at.source == '\n') ++at.source;
        afterCarriageReturn_ = false;
        if (at.AtEnd()) break;
        if (atLineStart_) *at.target++ = ' ';
        at = MoveLine(at);
        atLineStart_ = !at.AtEnd();
        if (at.AtEnd()) break;
        afterCarriageReturn_ = *at.source++ == '\r';
        wholeSize_ = static_cast<std::size_t>(at.target - buffer_.Data());
    }
    size_ = static_cast<std::size_t>(at.target - buffer_.Data());
}

void FoldedText::EndFile() {
    wholeSize_ = size_;
    StartFile();
}

void FoldedText::DropUnfinishedLine() {
    size_ = wholeSize_;
    StartFile();
}

void FoldedText::StartFile() {
    atLineStart_ = true;
    afterCarriageReturn_ = false;
}

}  // namespace velkarix
