// What the registry's part of the suite shares: a scratch key, and short ways to work below it.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/conformance/Home.h"

namespace velkarix {

class RegistryConformance : public Conformance {
  protected:
    RegistryConformance() {
        registry_.RegOpenKeyExA(Registry::HandleOf(Hive::CurrentUser), home_->ScratchKey(),
                                KeyAccess::All, scratch_);
        opened_.push_back(scratch_);
    }
    ~RegistryConformance() override {
        for (const KeyHandle key : opened_) {
            registry_.RegCloseKey(key);
        }
    }

    // Handles of keys below the scratch key, closed with the test; 0 with a failure when there is
    // none to be had.
    KeyHandle Created(const std::string& path) {
        KeyHandle key = 0;
        EXPECT_EQ(registry_.RegCreateKeyA(scratch_, path, key), error::Success) << path;
        opened_.push_back(key);
        return key;
    }
    KeyHandle Opened(const std::string& path, KeyAccess access) {
        KeyHandle key = 0;
        EXPECT_EQ(registry_.RegOpenKeyExA(scratch_, path, access, key), error::Success) << path;
        opened_.push_back(key);
        return key;
    }

    // Only the result; the key is closed again.
    ErrorCode Create(const std::string& path) {
        KeyHandle key = 0;
        const ErrorCode result = registry_.RegCreateKeyA(scratch_, path, key);
        return result == error::Success ? registry_.RegCloseKey(key) : result;
    }
    ErrorCode Open(const std::string& path) {
        KeyHandle key = 0;
        const ErrorCode result = registry_.RegOpenKeyA(scratch_, path, key);
        return result == error::Success ? registry_.RegCloseKey(key) : result;
    }

    std::vector<std::string> SubKeys(KeyHandle key) {
        std::vector<std::string> names;
        std::string name;
        for (std::uint32_t index = 0;
             registry_.RegEnumKeyExA(key, index, 256, name) == error::Success; ++index) {
            names.push_back(name);
        }
        return names;
    }

    // A value's bytes; empty when it is missing.
    Bytes ValueOf(KeyHandle key, const std::string& name) {
        std::uint32_t type = 0;
        std::uint32_t size = 0;
        if (registry_.RegQueryValueExA(key, name, type, nullptr, size) != error::Success) {
            return {};
        }
        Bytes data(size);
        registry_.RegQueryValueExA(key, name, type, &data, size);
        return data;
    }

    Registry& registry_ = machine_.registry;
    KeyHandle scratch_ = 0;
    std::vector<KeyHandle> opened_;
};

}  // namespace velkarix
