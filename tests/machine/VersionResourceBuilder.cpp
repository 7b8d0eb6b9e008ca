#include "tests/machine/VersionResourceBuilder.h"

#include <string_view>

namespace velkarix {
namespace {

constexpr std::size_t lengthAt = 0;  // the places of the fields in a block's head
constexpr std::size_t valueLengthAt = 2;
constexpr std::uint16_t binaryValue = 0;
constexpr std::uint16_t textValue = 1;

void Put16(Bytes& data, std::size_t value) {
    data.push_back(static_cast<std::uint8_t>(value));
    data.push_back(static_cast<std::uint8_t>(value >> 8));
}

void Put32(Bytes& data, std::uint32_t value) {
    Put16(data, value & 0xFFFF);
    Put16(data, value >> 16);
}

void Set16(Bytes& data, std::size_t at, std::size_t value) {
    data[at] = static_cast<std::uint8_t>(value);
    data[at + 1] = static_cast<std::uint8_t>(value >> 8);
}

void Align(Bytes& data) {
    data.resize((data.size() + 3) / 4 * 4);
}

// The characters of code page 1252 above 127 that differ from Unicode aren't wanted here.
void PutText(Bytes& data, std::string_view text) {
    for (const char character : text) {
        Put16(data, static_cast<unsigned char>(character));
    }
    Put16(data, 0);
}

// One block: a head with a name, a value, blocks inside. Finish() sets the lengths.
class Block {
  public:
    Block(Bytes& data, std::uint16_t type, std::string_view name) : data_(data) {
        Align(data_);
        start_ = data_.size();
        Put16(data_, 0);
        Put16(data_, 0);
        Put16(data_, type);
        PutText(data_, name);
        Align(data_);
    }
    // Counted in bytes, or for a text in characters with the NUL.
    void ValueLength(std::size_t length) { Set16(data_, start_ + valueLengthAt, length); }
    void Finish() { Set16(data_, start_ + lengthAt, data_.size() - start_); }

  private:
    Bytes& data_;
    std::size_t start_ = 0;
};

void PutFixedInfo(Bytes& data) {
    constexpr std::uint32_t fields[] = {
        0xFEEF04BD, 0x00010000,     // signature, version of the structure
        0x00010000, 0,              // file version 1.0.0.0
        0x00010000, 0,              // product version 1.0.0.0
        0x3F,       0,              // flags: which count, none set
        4,          1,          0,  // for 32-bit Windows, an application
        0,          0,              // no date
    };
    for (const std::uint32_t field : fields) {
        Put32(data, field);
    }
}

void PutTranslations(Bytes& data,
                     const std::vector<std::pair<std::uint16_t, std::uint16_t>>& translations) {
    Block outer(data, textValue, "VarFileInfo");
    Block table(data, binaryValue, "Translation");
    table.ValueLength(translations.size() * 4);
    for (const auto& [language, codePage] : translations) {
        Put16(data, language);
        Put16(data, codePage);
    }
    table.Finish();
    outer.Finish();
}

void PutTable(Bytes& data, const std::string& key, const VersionResourceBuilder::Fields& fields) {
    Block table(data, textValue, key);
    for (const auto& [name, text] : fields) {
        Block field(data, textValue, name);
        field.ValueLength(text.size() + 1);
        PutText(data, text);
        field.Finish();
    }
    table.Finish();
}

}  // namespace

VersionResourceBuilder& VersionResourceBuilder::Translation(std::uint16_t language,
                                                            std::uint16_t codePage) {
    translations_.emplace_back(language, codePage);
    return *this;
}

VersionResourceBuilder& VersionResourceBuilder::Strings(std::string key, Fields fields) {
    tables_.emplace_back(std::move(key), std::move(fields));
    return *this;
}

Bytes VersionResourceBuilder::Build() const {
    Bytes data;
    Block root(data, binaryValue, "VS_VERSION_INFO");
    const std::size_t fixedInfo = data.size();
    PutFixedInfo(data);
    root.ValueLength(data.size() - fixedInfo);
    if (!tables_.empty()) {
        Block strings(data, textValue, "StringFileInfo");
        for (const auto& [key, fields] : tables_) {
            PutTable(data, key, fields);
        }
        strings.Finish();
    }
    if (!translations_.empty()) {
        PutTranslations(data, translations_);
    }
    root.Finish();
    return data;
}

}  // namespace velkarix
