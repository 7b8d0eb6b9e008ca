#include "tests/machine/MemoryKey.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/Text.h"

namespace velkarix {
namespace {

std::vector<std::string> Levels(const std::string& path) {
    std::vector<std::string> levels;
    std::size_t start = 0;
    while (start <= path.size()) {
        const std::size_t end = std::min(path.find('\\', start), path.size());
        if (end > start) {
            levels.push_back(path.substr(start, end - start));
        }
        start = end + 1;
    }
    return levels;
}

// Bytes as text that a person can read: what isn't printable as two digits.
std::string Readable(const Bytes& data) {
    constexpr char digits[] = "0123456789abcdef";
    std::string text;
    text.reserve(data.size());
    for (const std::uint8_t byte : data) {
        if (byte >= ' ' && byte < 0x7F && byte != '\\') {
            text += static_cast<char>(byte);
        } else {
            text += {'\\', digits[byte >> 4], digits[byte & 15]};
        }
    }
    return text;
}

}  // namespace

std::shared_ptr<MemoryKey> MemoryKey::Find(std::shared_ptr<MemoryKey> from,
                                           const std::string& path) {
    for (const std::string& level : Levels(path)) {
        from = from->subKeys.Find(level);
        if (!from) {
            return nullptr;
        }
    }
    return from;
}

ErrorCode MemoryKey::Make(std::shared_ptr<MemoryKey>& from, const std::string& path,
                          std::uint32_t neededRight, std::size_t longestName) {
    for (const std::string& level : Levels(path)) {
        if (level.size() > longestName) {
            return error::InvalidParameter;
        }
        std::shared_ptr<MemoryKey> next = from->subKeys.Find(level);
        if (!next) {
            if ((from->allowed & neededRight) != neededRight) {
                return error::AccessDenied;
            }
            next = from->subKeys.Add(std::make_shared<MemoryKey>(level, from.get()));
            next->allowed = from->allowed;
        }
        from = next;
    }
    return error::Success;
}

void MemoryKey::Set(const std::string& valueName, std::uint32_t type, Bytes data) {
    std::shared_ptr<MemoryValue> value = values.Find(valueName);
    if (!value) {
        value = values.Add(std::make_shared<MemoryValue>(MemoryValue{valueName, type, {}}));
    }
    value->type = type;
    value->data = std::move(data);
}

void MemoryKey::CopyFrom(const MemoryKey& source) {
    for (std::size_t index = 0; const auto value = source.values.At(index); ++index) {
        Set(TrimAtNull(value->name), value->type, value->data);
    }
    // Listed beforehand: this key may itself be below the source.
    std::vector<std::shared_ptr<MemoryKey>> below;
    for (std::size_t index = 0; const auto key = source.subKeys.At(index); ++index) {
        if (auto reached = source.subKeys.Find(TrimAtNull(key->name))) {
            below.push_back(std::move(reached));
        }
    }
    for (const auto& key : below) {
        std::shared_ptr<MemoryKey> copy = subKeys.Find(key->name);
        if (!copy) {
            copy = std::make_shared<MemoryKey>(key->name, this);
            copy->CopyFrom(*key);
            subKeys.Add(std::move(copy));
        } else if (copy.get() != key.get()) {
            copy->CopyFrom(*key);
        }
    }
}

void MemoryKey::MarkDeleted() {
    deleted = true;
    parent = nullptr;
    for (std::size_t index = 0; const auto key = subKeys.At(index); ++index) {
        key->MarkDeleted();
    }
}

void MemoryKey::Allow(std::uint32_t rights) {
    allowed = rights;
    for (std::size_t index = 0; const auto key = subKeys.At(index); ++index) {
        key->Allow(rights);
    }
}

std::string MemoryKey::Text(const std::string& indent) const {
    std::string text = indent + "[" + name + "]\n";
    for (std::size_t index = 0; const auto value = values.At(index); ++index) {
        text += indent + "  " + value->name + " = " + std::to_string(value->type) + ":" +
                Readable(value->data) + "\n";
    }
    for (std::size_t index = 0; const auto key = subKeys.At(index); ++index) {
        text += key->Text(indent + "  ");
    }
    return text;
}

}  // namespace velkarix
