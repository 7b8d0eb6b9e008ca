// Names of any length and any characters, in every place that lists things by their names: which
// rows there are, whose facts each shows, and what the commands on a row reach.
#include <ostream>
#include <utility>

#include "tests/field/FieldPages.h"

namespace velkarix {
namespace {

// What an item can be named, and how that is listed.
struct NameCase {
    const char* name;
    std::u16string item;
    std::string listed;
    // Another item whose name the calls would take in place of the first one's; empty for none.
    std::string namesake;
    // Whether asking for an item by the listed name leads to it.
    bool isReachable;
    bool endsListOfKeys;    // a key of that name, and those behind it, can't be listed
    bool endsListOfValues;  // so for a value
};

void PrintTo(const NameCase& name, std::ostream* stream) {
    *stream << name.name;
}

std::u16string Wide(const std::string& text) {
    std::u16string wide;
    for (const char c : text) wide += static_cast<char16_t>(static_cast<unsigned char>(c));
    return wide;
}

NameCase Plain(const char* name, const std::string& item) {
    const std::size_t length = item.size();
    return {name, Wide(item), item, "", true, length > 254, length > 259};
}

// All begin as the names of classes do, since of some lists only those are items.
std::vector<NameCase> AllNames() {
    const auto braced = [](std::size_t length) {
        return std::string("{").append(length - 2, 'n').append("}");
    };
    const std::string nul("{N}\0x", 5);
    return {
        Plain("OfOneLetter", "{"),
        Plain("OfLettersAboveTheCodePagesHalf", "{\xE9\xFC\xDF\x80\xFF}"),
        Plain("OfHalfACharacterOfTwoBytes", "{\x81}"),
        Plain("OfSigns", "{%TEMP%},/\"'&=;[]"),
        Plain("Of150Bytes", braced(150)),
        Plain("Of254Bytes", braced(254)),
        Plain("Of255Bytes", braced(255)),
        Plain("Of256Bytes", braced(256)),
        Plain("Of259Bytes", braced(259)),
        Plain("Of260Bytes", braced(260)),
        {"WithANul", Wide(nul), nul, "", false, false, false},
        {"WithANulAndANamesake", Wide(nul), nul, "{N}", false, false, false},
        {"OfAnotherCodePage", u"{\u0430\u0431}", "{??}", "", false, false, false},
        {"OfAnotherCodePageAndANamesake", u"{\u0430\u0431}", "{??}", "{??}", false, false, false},
        {"OfCharactersOfFourBytes", u"{\U0001F600}", "{??}", "{??}", false, false, false},
    };
}

// A place that lists things by their names.
struct NamePlace {
    const char* name;
    FieldList rows;
    Hive hive;
    const char* live;
    const char* held;
    bool values;
    // Whether a thing of which no more than the name can be read makes a row.
    bool nameMakesARow;
    const char* textPrefix;  // of a row's text, before the name
};

constexpr const char* Uninstall = "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall";

std::vector<NamePlace> AllPlaces() {
    std::vector<NamePlace> places = {
        {"Startup", StartupRows, Hive::LocalMachine, LiveRun, HeldRun, true, true, ""},
        {"Installed", InstalledRows, Hive::LocalMachine, Uninstall, "", false, false, ""},
    };
    const std::pair<const char*, const ListCase*> lists[] = {
        {"BHOs", &BHOs},   {"Toolbars", &Toolbars},   {"Buttons", &Buttons},
        {"Menus", &Menus}, {"Protocols", &Protocols}, {"Domains", &Domains},
        {"Hooks", &Hooks}};
    for (const auto& [name, list] : lists) {
        const bool nameMakesARow = list == &BHOs || list == &Menus || list->values;
        places.push_back({name, BrowserRows(*list), list->places[0].hive, list->places[0].live,
                          list->places[0].held, list->values, nameMakesARow, list->textPrefix});
    }
    return places;
}

using Combination = std::tuple<NameCase, NamePlace>;

class FieldNames : public FieldPages, public testing::WithParamInterface<Combination> {
  protected:
    FieldNames() {
        for (const char* word : {"own", "other", "last"}) {
            Machine()
                .AddFile(FileOf(word))
                .Content(word)
                .Version({{"CompanyName", std::string("Facts of ") + word}});
        }
    }
    static std::string FileOf(const std::string& word) { return "C:\\" + word + "\\facts.exe"; }

    // An item that shows the facts of that word wherever it can be asked for them. What it is found
    // by in the registry, whatever its name: the value's name there, or the key's path.
    std::string Put(const std::u16string& item, const std::string& word) {
        std::string path = Registry().AddNamedKey(Hive::ClassesRoot, "CLSID", item);
        Machine().SetValue(Hive::ClassesRoot, path + "\\InprocServer32", "", FileOf(word));
        if (place.values) {
            const std::string command = FileOf(word) + '\0';
            Registry().SetNamedValue(place.hive, place.live, item, registryType::Sz,
                                     Bytes(command.begin(), command.end()));
            return Registry().ValueNamesOf(place.hive, place.live).back();
        }
        path = Registry().AddNamedKey(place.hive, place.live, item);
        for (const char* value : {"", "Script", "DisplayName", "UninstallString"}) {
            Machine().SetValue(place.hive, path, value, FileOf(word));
        }
        Machine().SetValue(Hive::ClassesRoot, "CLSID\\" + word + "\\InprocServer32", "",
                           FileOf(word));
        Machine().SetValue(place.hive, path, "CLSID", word);
        Machine().SetDword(place.hive, path, "*", word == "own" ? 11 : word == "other" ? 12 : 13);
        return path;
    }
    // All that lies there.
    std::string AllOf(const std::string& stored) {
        return place.values ? TextOfValue(Registry(), place.hive, place.live, stored)
                            : TextOfKey(Registry(), place.hive, stored);
    }
    // The names of the rows, each with the word whose facts it shows.
    RowTexts Shown() {
        const std::pair<const char*, const char*> words[] = {
            {"own", ": 11"}, {"other", ": 12"}, {"last", ": 13"}};
        RowTexts shown;
        for (std::size_t i = 0; i < View(place.rows).RowCount(); ++i) {
            const RowTexts row = Rows(place.rows)[i];
            std::string text = NameOf(row[0], View(place.rows).Row(i)) + " =";
            for (const auto& [word, zone] : words) {
                for (const std::string& column : row) {
                    const bool holds =
                        column.find(FileOf(word)) != std::string::npos ||
                        column.find(std::string("Facts of ") + word) != std::string::npos ||
                        column.ends_with(zone);
                    if (holds && !text.ends_with(word)) text += std::string(" ") + word;
                }
            }
            shown.push_back(text);
        }
        std::sort(shown.begin(), shown.end());
        return shown;
    }
    // Applications are shown by what their keys say, and named by the key of the row.
    std::string NameOf(const std::string& text, const ListRow& row) {
        if (!place.rows.disable) return row.Key();
        return text.substr(std::string(place.textPrefix).size());
    }
    bool EndsList() { return place.values ? name.endsListOfValues : name.endsListOfKeys; }

    // What the list is to show; a startup value tells its own command, whatever its name is.
    RowTexts Expected() {
        RowTexts expected;
        const bool isStartup = place.name == std::string("Startup");
        if (EndsList()) return expected;
        expected.push_back("{z} = last");
        if (name.isReachable) {
            expected.push_back(name.listed + " = own");
        } else if (name.listed != name.namesake && place.nameMakesARow) {
            expected.push_back(name.listed + (isStartup ? " = own" : " ="));
        }
        if (!name.namesake.empty()) expected.push_back(name.namesake + " = other");
        std::sort(expected.begin(), expected.end());
        return expected;
    }

    // Whether the list is to show a row under the item's name, its own or its namesake's.
    bool ExpectsRow() {
        const RowTexts expected = Expected();
        return std::any_of(expected.begin(), expected.end(), [this](const std::string& row) {
            return row.starts_with(name.listed + " =");
        });
    }

    const NameCase& name = std::get<0>(GetParam());
    const NamePlace& place = std::get<1>(GetParam());
};

TEST_P(FieldNames, ShowNoFactsButTheirOwn) {
    Put(name.item, "own");
    if (!name.namesake.empty()) Put(Wide(name.namesake), "other");
    Put(u"{z}", "last");
    Enter(place.rows);
    EXPECT_EQ(Shown(), Expected());
    EXPECT_EQ(Messages(), RowTexts());
}

TEST_P(FieldNames, AreReachedByTheirOwnRowAlone) {
    const std::string own = Put(name.item, "own");
    const std::string before = AllOf(own);
    ASSERT_NE(before, "");
    const bool isNamesakes = name.listed == name.namesake;
    if (!name.namesake.empty()) Put(Wide(name.namesake), "other");
    Enter(place.rows);
    const bool isApplication = place.rows.disable == nullptr;
    const std::string text = isApplication ? FileOf(isNamesakes ? "other" : "own")
                                           : std::string(place.textPrefix) + name.listed;
    ASSERT_EQ(RowOf(place.rows, text) != nullptr, ExpectsRow());
    if (!ExpectsRow()) return;
    const FieldItem item = {place.hive, place.live, place.held, name.listed, place.values};
    if (name.isReachable) {
        GoOffAndOnAndAway(place.rows, item, text);
        EXPECT_EQ(AllOf(own), "");
    } else if (isNamesakes) {
        GoAway(place.rows, item, text);
        EXPECT_EQ(AllOf(own), before);
    } else {
        ExpectUnmoved(place.rows, text);
    }
}

INSTANTIATE_TEST_SUITE_P(Each, FieldNames,
                         testing::Combine(testing::ValuesIn(AllNames()),
                                          testing::ValuesIn(AllPlaces())),
                         [](const auto& test) {
                             return std::string(std::get<0>(test.param).name) + "In" +
                                    std::get<1>(test.param).name;
                         });

}  // namespace
}  // namespace velkarix
