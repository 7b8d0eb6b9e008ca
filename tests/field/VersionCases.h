// Version resources as careless and hostile programs have them, and what can be read of each.
#pragma once

#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "base/Bytes.h"

namespace velkarix {

struct VersionCase {
    const char* name;
    Bytes block;
    std::string company;
    std::string product;
    std::string description;
};

inline void PrintTo(const VersionCase& version, std::ostream* stream) {
    *stream << version.name;
}

// A node of a resource: its length, that of its value, whether that is a text, its name, its
// value, and the nodes below. What a test wants wrong it says in place of the right length.
struct VersionNode {
    std::string name;
    std::string value = {};  // a text, or bytes where it isn't one
    bool isText = true;
    std::vector<VersionNode> children = {};
    int length = -1;       // the true one
    int valueLength = -1;  // the true one

    Bytes Build() const {
        Bytes node(6);
        Put(node, 2, valueLength >= 0 ? valueLength : static_cast<int>(ValueLength()));
        node[4] = isText ? 1 : 0;
        PutText(node, name);
        Align(node);
        if (isText && !value.empty()) {
            PutText(node, value);
        } else {
            node.insert(node.end(), value.begin(), value.end());
        }
        for (const VersionNode& child : children) {
            Align(node);
            const Bytes below = child.Build();
            node.insert(node.end(), below.begin(), below.end());
        }
        Put(node, 0, length >= 0 ? length : static_cast<int>(node.size()));
        return node;
    }

  private:
    std::size_t ValueLength() const {
        return isText && !value.empty() ? value.size() + 1 : value.size();
    }
    static void Put(Bytes& node, std::size_t at, int number) {
        node[at] = static_cast<std::uint8_t>(number);
        node[at + 1] = static_cast<std::uint8_t>(number >> 8);
    }
    static void PutText(Bytes& node, const std::string& text) {
        for (const char c : text + '\0') {
            node.push_back(static_cast<std::uint8_t>(c));
            node.push_back(0);
        }
    }
    static void Align(Bytes& node) {
        while (node.size() % 4 != 0) node.push_back(0);
    }
};

inline std::vector<VersionCase> AllVersionCases() {
    using Nodes = std::vector<VersionNode>;
    const VersionNode company{"CompanyName", "Company"};
    const VersionNode product{"ProductName", "Product"};
    const VersionNode description{"FileDescription", "Description"};
    const Nodes all = {company, product, description};
    const auto table = [](Nodes strings, const char* name = "040904B0") {
        return VersionNode{"StringFileInfo", "", true, {{name, "", true, std::move(strings)}}};
    };
    const auto translated = [](const std::string& bytes) {
        return VersionNode{"VarFileInfo", "", true, {{"Translation", bytes, false}}};
    };
    const VersionNode english = translated("\x09\x04\xB0\x04");
    const auto root = [](Nodes children) {
        return VersionNode{"VS_VERSION_INFO", std::string(52, '\0'), false, std::move(children)};
    };
    const auto with = [](VersionNode node, int length, int valueLength) {
        node.length = length;
        node.valueLength = valueLength;
        return node;
    };
    const auto longRoot = [&](int length) {
        return with(root({table(all), english}), length, -1).Build();
    };
    VersionNode deep{"Deep", "x"};
    for (int level = 0; level < 40; ++level) deep = {"Deep", "", true, {deep}};
    Bytes cut = root({table(all), english}).Build();
    cut.resize(cut.size() / 2);

    const std::string c = "Company";
    const std::string p = "Product";
    const std::string d = "Description";
    return {
        {"Whole", root({table(all), english}).Build(), c, p, d},
        {"TheTranslationsBeforeTheStrings", root({english, table(all)}).Build(), c, p, d},
        {"NoTranslation", root({table(all)}).Build(), "", "", ""},
        {"ATranslationOfTwoBytes", root({table(all), translated("\x09\x04")}).Build(), "", "", ""},
        {"ATranslationOfNoBytes", root({table(all), translated("")}).Build(), "", "", ""},
        {"NoTableForTheTranslation", root({table(all, "040704E4"), english}).Build(), "", "", ""},
        {"NoTableAtAll", root({{"StringFileInfo", ""}, english}).Build(), "", "", ""},
        {"NoStrings", root({english}).Build(), "", "", ""},
        {"ATableOfNoStrings", root({table({}), english}).Build(), "", "", ""},
        {"AChildOfNoLength",
         root({table({company, with(product, 0, -1), description}), english}).Build(), c, "", ""},
        {"AFirstChildOfNoLength",
         root({table({with(company, 0, -1), product, description}), english}).Build(), "", "", ""},
        {"AChildShorterThanItsHead",
         root({table({company, with(product, 4, -1), description}), english}).Build(), c, "", ""},
        {"AChildLongerThanAll",
         root({table({with(company, 0xFFFF, -1), product, description}), english}).Build(), c, "",
         ""},
        {"AValueLongerThanAll",
         root({table({with(company, -1, 0xFFFF), product, description}), english}).Build(), c, p,
         d},
        {"AValueOfNoLength",
         root({table({with(company, -1, 0), product, description}), english}).Build(), "", p, d},
        {"ARootLongerThanAll", longRoot(0xFFFF), c, p, d},
        {"ARootOfNoLength", longRoot(0), "", "", ""},
        {"TablesInsideOfTables", root({deep, table(all), english}).Build(), c, p, d},
        {"HalfOfIt", cut, "", "", ""},
        {"NothingButOnes", Bytes(400, 0xFF), "", "", ""},
        {"NothingButZeros", Bytes(400, 0), "", "", ""},
        {"OneByte", {1}, "", "", ""},
    };
}

}  // namespace velkarix
