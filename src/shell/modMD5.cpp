#include "shell/modMD5.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <span>

#include "base/RawBuffer.h"
#include "shell/OpenFile.h"

namespace velkarix {
namespace {

// Small enough to stay in the processor's cache from reading to hashing.
constexpr std::size_t BlockSize = std::size_t{256} * 1024;
constexpr std::size_t DigestSize = 16;

// Blocks after which the user may begin to wait; small files aren't even asked how large they are.
constexpr std::size_t QuickBlocks = 16;

// How many blocks of the file are left after that many.
std::size_t BlocksLeft(FileSystem& files, FileHandle file, std::size_t read) {
    const std::uint64_t blocks = files.GetFileSize(file).value_or(0) / BlockSize;
    return blocks > read ? static_cast<std::size_t>(blocks - read) : 0;
}

bool HashFile(FileSystem& files, FileHandle file, Hash& hash, const std::string& path,
              Progress& progress) {
    RawBuffer<std::uint8_t> block;
    if (!block.Grow(BlockSize, 0)) return false;
    std::optional<Progress::Work> work;
    for (std::size_t blocks = 0;; ++blocks) {
        if (blocks == QuickBlocks)
            work.emplace(progress, "Reading", BlocksLeft(files, file, blocks));
        if (work) work->Step(path);
        std::uint32_t read = 0;
        if (files.ReadFile(file, {block.Data(), BlockSize}, read) != error::Success) return false;
        if (read == 0) return true;
        if (!hash.CryptHashData({block.Data(), read})) return false;
    }
}

std::string ToHex(const Bytes& bytes) {
    constexpr char Digits[] = "0123456789abcdef";
    std::string text;
    for (const std::uint8_t byte : bytes) {
        text += Digits[byte >> 4];
        text += Digits[byte & 0xF];
    }
    return text;
}

}  // namespace

std::string GetFileMD5(const Machine& machine, const std::string& path, Progress& progress) {
    const OpenFile file(machine.files, path);
    if (!file.IsOpen()) return {};
    const std::unique_ptr<Hash> hash = machine.cryptography.CryptCreateHash();
    if (!hash || !HashFile(machine.files, file.Handle(), *hash, path, progress)) return {};
    const std::optional<Bytes> digest = hash->CryptGetHashParam();
    return digest && digest->size() == DigestSize ? ToHex(*digest) : std::string();
}

}  // namespace velkarix
