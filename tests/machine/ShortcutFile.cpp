#include "tests/machine/ShortcutFile.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace velkarix {
namespace {

// The header: its size, the class of shortcuts, flags, then the file's facts, of which only the
// icon's index says something here.
constexpr std::uint32_t headerSize = 0x4C;
constexpr std::array<std::uint8_t, 16> shortcutClass = {0x01, 0x14, 0x02, 0, 0, 0, 0, 0,
                                                        0xC0, 0,    0,    0, 0, 0, 0, 0x46};
constexpr std::size_t beforeIconIndex = 32;  // attributes, three times, the size of the file
constexpr std::size_t afterIconIndex = 16;   // how to show it, its hot key, what is reserved

// Which parts follow the header, in this order.
constexpr std::uint32_t hasLocation = 0x02;
constexpr std::uint32_t hasArguments = 0x20;
constexpr std::uint32_t hasIconLocation = 0x40;

// A location: seven numbers (its size first), a volume without a name, the path, no suffix.
constexpr std::uint32_t locationHeaderSize = 0x1C;
constexpr std::uint32_t volumeSize = 0x11;
constexpr std::uint32_t pathOffset = locationHeaderSize + volumeSize;

class Writer {
  public:
    void Number(std::uint32_t number, int size = 4) {
        for (int index = 0; index < size; ++index) {
            bytes.push_back(static_cast<std::uint8_t>(number >> 8 * index));
        }
    }
    void Text(const std::string& text) { bytes.insert(bytes.end(), text.begin(), text.end()); }
    void Zeros(std::size_t count) { bytes.insert(bytes.end(), count, 0); }
    void CountedText(const std::string& text) {
        Number(static_cast<std::uint32_t>(text.size()), 2);
        Text(text);
    }

    Bytes bytes;
};

void WriteLocation(Writer& writer, const std::string& path) {
    const auto suffixOffset = static_cast<std::uint32_t>(pathOffset + path.size() + 1);
    for (const std::uint32_t number : {suffixOffset + 1, locationHeaderSize, 1u, locationHeaderSize,
                                       pathOffset, 0u, suffixOffset}) {
        writer.Number(number);
    }
    for (const std::uint32_t number : {volumeSize, 3u, 0u, volumeSize - 1}) {  // 3: a hard disk
        writer.Number(number);
    }
    writer.Zeros(1);  // the volume's name
    writer.Text(path);
    writer.Zeros(2);  // the path's end and the suffix
}

// Gives zeros and empty texts once something isn't there.
class Reader {
  public:
    explicit Reader(const Bytes& bytes) : bytes_(bytes) {}

    bool IsCut() const { return isCut_; }
    std::uint32_t Number(int size = 4) {
        std::uint32_t number = 0;
        const std::string text = Text(static_cast<std::size_t>(size));
        for (std::size_t index = 0; index < text.size(); ++index) {
            number |= std::uint32_t{static_cast<std::uint8_t>(text[index])} << 8 * index;
        }
        return number;
    }
    std::string Text(std::size_t size) {
        isCut_ = isCut_ || bytes_.size() - position_ < size;
        if (isCut_) {
            return {};
        }
        const auto start = bytes_.begin() + static_cast<std::ptrdiff_t>(position_);
        position_ += size;
        return std::string(start, start + static_cast<std::ptrdiff_t>(size));
    }
    std::string CountedText() { return Text(Number(2)); }

  private:
    const Bytes& bytes_;
    std::size_t position_ = 0;
    bool isCut_ = false;
};

std::string ReadLocation(Reader& reader) {
    const std::uint32_t size = reader.Number();
    const std::string location = size < pathOffset ? "" : reader.Text(size - 4);
    return location.empty() ? "" : location.substr(pathOffset - 4).c_str();
}

}  // namespace

Bytes MakeShortcutFile(const Shortcut& shortcut) {
    const std::string icon = shortcut.iconLocation.substr(0, shortcut.iconLocation.rfind(','));
    const std::string index =
        shortcut.iconLocation.substr(std::min(icon.size() + 1, shortcut.iconLocation.size()));
    Writer writer;
    writer.Number(headerSize);
    writer.bytes.insert(writer.bytes.end(), shortcutClass.begin(), shortcutClass.end());
    writer.Number((shortcut.targetPath.empty() ? 0 : hasLocation) |
                  (shortcut.arguments.empty() ? 0 : hasArguments) |
                  (icon.empty() ? 0 : hasIconLocation));
    writer.Zeros(beforeIconIndex);
    writer.Number(static_cast<std::uint32_t>(std::atoi(index.c_str())));
    writer.Number(1);  // shown in its normal size
    writer.Zeros(afterIconIndex - 4);
    if (!shortcut.targetPath.empty()) {
        WriteLocation(writer, shortcut.targetPath);
    }
    for (const std::string& text : {shortcut.arguments, icon}) {
        if (!text.empty()) {
            writer.CountedText(text);
        }
    }
    writer.Zeros(4);  // no more parts
    return writer.bytes;
}

std::optional<Shortcut> ReadShortcutFile(const Bytes& file) {
    Reader reader(file);
    if (reader.Number() != headerSize ||
        reader.Text(shortcutClass.size()) !=
            std::string(shortcutClass.begin(), shortcutClass.end())) {
        return std::nullopt;
    }
    const std::uint32_t parts = reader.Number();
    reader.Text(beforeIconIndex);
    const auto iconIndex = static_cast<std::int32_t>(reader.Number());
    reader.Text(afterIconIndex);
    Shortcut shortcut;
    shortcut.targetPath = (parts & hasLocation) != 0 ? ReadLocation(reader) : "";
    shortcut.arguments = (parts & hasArguments) != 0 ? reader.CountedText() : "";
    const std::string icon = (parts & hasIconLocation) != 0 ? reader.CountedText() : "";
    shortcut.iconLocation = icon + "," + std::to_string(iconIndex);
    return reader.IsCut() ? std::nullopt : std::optional(shortcut);
}

}  // namespace velkarix
