#include "fuzzing/FuzzTarget.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace velkarix {

namespace {

constexpr std::uint8_t LongText = 255;
constexpr std::string_view SeedsOption = "--seeds=";

void WriteSeeds(const std::filesystem::path& folder) {
    std::filesystem::create_directories(folder);
    for (std::size_t number = 0; const Bytes& seed : Seeds()) {
        std::ofstream file(folder / ("seed-" + std::to_string(number++)), std::ios::binary);
        file.write(reinterpret_cast<const char*>(seed.data()),
                   static_cast<std::streamsize>(seed.size()));
    }
}

}  // namespace

std::span<const std::uint8_t> FuzzInput::Take(std::size_t count) {
    const auto taken = rest_.first(std::min(count, rest_.size()));
    rest_ = rest_.subspan(taken.size());
    return taken;
}

std::uint8_t FuzzInput::Byte() {
    const auto byte = Take(1);
    return byte.empty() ? std::uint8_t{0} : byte.front();
}

Bytes FuzzInput::Data() {
    std::size_t size = Byte();
    if (size == LongText) size = Byte() + std::size_t{256} * Byte();
    const auto data = Take(size);
    return {data.begin(), data.end()};
}

std::string FuzzInput::Text() {
    const Bytes data = Data();
    return {data.begin(), data.end()};
}

std::string FuzzInput::Rest() {
    const auto rest = Take(rest_.size());
    return {rest.begin(), rest.end()};
}

FuzzSeed& FuzzSeed::Byte(std::size_t byte) {
    bytes_.push_back(static_cast<std::uint8_t>(byte));
    return *this;
}

FuzzSeed& FuzzSeed::Text(std::string_view text) {
    if (text.size() < LongText) return Byte(text.size()).Rest(text);
    return Byte(LongText).Byte(text.size() % 256).Byte(text.size() / 256).Rest(text);
}

FuzzSeed& FuzzSeed::Data(const Bytes& data) {
    return Text({reinterpret_cast<const char*>(data.data()), data.size()});
}

FuzzSeed& FuzzSeed::Rest(std::string_view text) {
    bytes_.insert(bytes_.end(), text.begin(), text.end());
    return *this;
}

void Expect(bool holds, std::string_view promise, std::string_view details) {
    if (holds) return;
    std::fprintf(stderr, "This doesn't hold: %.*s\n%.*s\n", static_cast<int>(promise.size()),
                 promise.data(), static_cast<int>(details.size()), details.data());
    std::abort();
}

}  // namespace velkarix

// The fuzzer's own names.

extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments) {
    for (int i = 1; i < *count; ++i) {
        const std::string_view argument = (*arguments)[i];
        if (!argument.starts_with(velkarix::SeedsOption)) continue;
        velkarix::WriteSeeds(argument.substr(velkarix::SeedsOption.size()));
        std::exit(0);
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    velkarix::FuzzInput input({data, size});
    velkarix::RunInput(input);
    return 0;
}
