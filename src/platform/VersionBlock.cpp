#include "platform/VersionBlock.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace velkarix {
namespace {

// Real resources have four levels: root, StringFileInfo, table, string.
constexpr int DeepestLevel = 8;

constexpr std::size_t Text = 1;
constexpr std::string_view RootName = "VS_VERSION_INFO";

// The two forms of a node: the length of the whole node, the length of its value, in the 32-bit
// form a type (1 is text), then its name.
struct Form {
    std::size_t headerSize;
    std::size_t characterSize;
};
constexpr Form Wide{6, 2};
constexpr Form Narrow{4, 1};

struct Node {
    std::size_t end = 0;  // behind the node and all below it, never outside of its parent
    std::string name;
    std::size_t type = 0;       // of the 32-bit form
    std::size_t value = 0;      // where the value starts
    std::size_t valueSize = 0;  // in bytes, never past the resource's end
    std::size_t children = 0;   // where the first node below may start
    bool isSound = true;        // false when a length had to be cut
};

std::size_t Aligned(std::size_t offset) {
    return (offset + 3) & ~std::size_t{3};
}

class Reader {
  public:
    explicit Reader(const Bytes& block)
        // Where a 16-bit block has the first letter of its name, a 32-bit one has the type.
        : block_(block),
          form_(block.size() > 4 && block[4] >= ' ' ? Narrow : Wide),
          end_(block.size() < 2 ? 0 : std::min(Word(0), block.size())) {}

    std::optional<Node> Root() const { return NodeAt(0, block_.size()); }

    // Whether another node can start at `offset`; what remains otherwise is padding.
    bool HasRoom(std::size_t offset, std::size_t limit) const {
        return offset + form_.headerSize + form_.characterSize <= limit;
    }

    // The node at `offset` inside of a parent that ends at `limit`; nothing when its length or
    // its name is impossible.
    std::optional<Node> NodeAt(std::size_t offset, std::size_t limit) const {
        if (!HasRoom(offset, limit)) return std::nullopt;
        const std::size_t length = Word(offset);
        if (length < form_.headerSize + form_.characterSize) return std::nullopt;

        Node node;
        node.end = std::min(offset + length, limit);
        node.isSound = offset + length <= limit;
        if (form_.characterSize == 2) node.type = Word(offset + 4);

        std::size_t position = offset + form_.headerSize;
        for (;; position += form_.characterSize) {
            if (position + form_.characterSize > node.end) return std::nullopt;
            if (Character(position) == 0) break;
            node.name += AnsiCharacter(position);
        }
        SetValue(node, Aligned(position + form_.characterSize), Word(offset + 2));
        return node;
    }

    // The first node below `parent` that has this name.
    std::optional<Node> Child(const Node& parent, std::string_view name) const {
        for (std::size_t offset = parent.children; HasRoom(offset, parent.end);) {
            auto child = NodeAt(offset, parent.end);
            if (!child) return std::nullopt;
            if (EqualWithoutCase(child->name, name)) return child;
            offset = Aligned(child->end);
        }
        return std::nullopt;
    }

    // Whether `node` and all below it are sound. Nodes can't overlap here, so that the walk is
    // as long as the block and no longer. Who takes a type that isn't known for text counts the
    // value's bytes twice.
    bool IsSound(const Node& node, int level) const {
        if (!node.isSound || node.type > Text || level > DeepestLevel) return false;
        std::size_t offset = node.children;
        while (HasRoom(offset, node.end)) {
            const auto child = NodeAt(offset, node.end);
            if (!child || !IsSound(*child, level + 1)) return false;
            offset = Aligned(child->end);
        }
        return IsPadding(offset, node.end);
    }

    Bytes ValueOf(const Node& node) const {
        Bytes value;
        const std::size_t step = node.type == Text ? 2 : 1;
        for (std::size_t i = 0; i + step <= node.valueSize; i += step) {
            const std::size_t position = node.value + i;
            value.push_back(node.type == Text ? static_cast<std::uint8_t>(AnsiCharacter(position))
                                              : block_[position]);
        }
        return value;
    }

  private:
    std::size_t Word(std::size_t offset) const {
        return block_[offset] | static_cast<std::size_t>(block_[offset + 1]) << 8;
    }

    std::size_t Character(std::size_t offset) const {
        return form_.characterSize == 2 ? Word(offset) : block_[offset];
    }

    char AnsiCharacter(std::size_t offset) const {
        const std::size_t character = Character(offset);
        return character > 0xFF ? '?' : static_cast<char>(character);
    }

    // Whether what remains of a node is nothing, or a length of 0 for who reads on regardless.
    bool IsPadding(std::size_t offset, std::size_t limit) const {
        if (offset >= limit) return true;
        return limit - offset >= 2 &&
               std::all_of(block_.begin() + static_cast<std::ptrdiff_t>(offset),
                           block_.begin() + static_cast<std::ptrdiff_t>(limit),
                           [](std::uint8_t byte) { return byte == 0; });
    }

    // The count of a text's value is one of characters. Some resource compilers give bytes, so a
    // value may reach past its node and yet be inside the resource.
    void SetValue(Node& node, std::size_t start, std::size_t count) const {
        const std::size_t claimed = node.type == Text ? 2 * count : count;
        node.value = std::min(start, end_);
        node.valueSize = std::min(claimed, end_ - node.value);
        node.isSound = node.isSound && node.valueSize == claimed;
        node.children = Aligned(node.value + node.valueSize);
    }

    static char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

    static bool EqualWithoutCase(std::string_view a, std::string_view b) {
        return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                          [](char x, char y) { return Lower(x) == Lower(y); });
    }

    const Bytes& block_;
    Form form_;
    std::size_t end_;  // of the resource; the block may have spare bytes behind
};

}  // namespace

bool IsVersionBlockSound(const Bytes& block) {
    const Reader reader(block);
    const auto root = reader.Root();
    // A root that is odd itself could be read in the other form by somebody else.
    return root && root->name == RootName && reader.IsSound(*root, 1);
}

std::optional<Bytes> QueryVersionBlock(const Bytes& block, const std::string& subBlock) {
    const Reader reader(block);
    auto node = reader.Root();
    for (std::string_view rest = subBlock; node && !rest.empty();) {
        const auto name = rest.substr(0, rest.find('\\'));
        if (!name.empty()) node = reader.Child(*node, name);
        rest.remove_prefix(std::min(name.size() + 1, rest.size()));
    }
    if (!node) return std::nullopt;
    return reader.ValueOf(*node);
}

}  // namespace velkarix
