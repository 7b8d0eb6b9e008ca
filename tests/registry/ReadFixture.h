// The fixture of what is read of a key's values, with the entries that reading is to give.
#pragma once

#include "tests/registry/RegistryFixture.h"

namespace velkarix {

class ReadFixture : public RegistryFixture {
  protected:
    // What EnumValues makes of one value of this type and these bytes.
    RegValueEntry Entry(std::uint32_t type, Bytes data) {
        machine.registry.SetRaw(User, key, "Name", type, std::move(data));
        const auto entries = registry.EnumValues(User, key);
        EXPECT_EQ(entries.size(), 1u);
        return entries.empty() ? RegValueEntry{} : entries[0];
    }
    static RegValueEntry Text(const std::string& text) { return {"Name", text, RegValueTag::Text}; }
    static RegValueEntry Number(std::int32_t number) {
        return {"Name", number, RegValueTag::Integer};
    }
    static RegValueEntry Data(Bytes bytes) {
        return {"Name", std::move(bytes), RegValueTag::ByteArray};
    }

    const RegValueEntry NoData{"Name", "", RegValueTag::None};
};

}  // namespace velkarix
