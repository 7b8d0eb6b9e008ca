// What a fuzz target is made of. Each target is a file that says what is done with an input, what
// must hold then, and which inputs it begins with; the fuzzer changes those and keeps what reaches
// new code.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Bytes.h"

namespace velkarix {

// Takes an input apart from its front. Behind its end stand zeros and empty texts, so that any
// bytes are an input.
class FuzzInput {
  public:
    explicit FuzzInput(std::span<const std::uint8_t> bytes) : rest_(bytes) {}

    bool AtEnd() const { return rest_.empty(); }
    std::uint8_t Byte();
    bool Flag() { return Byte() % 2 != 0; }
    // A number below `end`, which is at most 256.
    std::size_t Below(std::size_t end) { return Byte() % end; }
    // A byte with the length, 255 for two more bytes with it, and the text itself.
    std::string Text();
    Bytes Data();
    std::string Rest();

  private:
    std::span<const std::uint8_t> Take(std::size_t count);

    std::span<const std::uint8_t> rest_;
};

// Writes what FuzzInput takes apart.
class FuzzSeed {
  public:
    FuzzSeed& Byte(std::size_t byte);
    FuzzSeed& Text(std::string_view text);
    FuzzSeed& Data(const Bytes& data);
    // Without a length: the last part.
    FuzzSeed& Rest(std::string_view text);
    operator Bytes() const { return bytes_; }

  private:
    Bytes bytes_;
};

// Each target defines these two.
void RunInput(FuzzInput& input);
std::vector<Bytes> Seeds();

// Ends the run, so that the fuzzer keeps the input, where a promise doesn't hold.
void Expect(bool holds, std::string_view promise, std::string_view details = {});

inline Bytes ToBytes(std::string_view text) {
    return {text.begin(), text.end()};
}

}  // namespace velkarix
