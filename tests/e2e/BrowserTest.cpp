#include "BrowserTest.h"

#include <filesystem>

namespace velkarix::e2e {

std::ostream& operator<<(std::ostream& stream, const BrowserPlace& place) {
    stream << place.place.path;
    if (place.tree) return stream << *place.tree;
    return stream << " is missing";
}

BrowserTest::~BrowserTest() {
    EndProgram();  // it may be in the middle of something where a test failed
    for (const auto& [place, tree] : before_) RestoreTree(place.hive, place.path, tree);
}

std::vector<BrowserPlace> BrowserTest::ReadPlaces() {
    std::vector<BrowserPlace> places;
    for (const RegistryPlace& place : BrowserPlaces()) {
        places.push_back({place, ReadTree(place.hive, place.path)});
    }
    return places;
}

void BrowserTest::OpenBrowser() {
    Start();
    ASSERT_TRUE(Running().Press("cmdIE"));
}

ListWindow BrowserTest::Show(const BrowserList& view) {
    EXPECT_TRUE(Running().Press(view.strip));
    const ListWindow list = Running().List(view.list);
    EXPECT_TRUE(list.Visible()) << view.list;
    return list;
}

std::optional<int> BrowserTest::FindItem(const SampleItem& item, bool enabled) {
    const ListWindow list = Running().List(item.list.list);
    const std::vector<std::string> names = list.Column(0);
    for (int row = 0; row < static_cast<int>(names.size()); ++row) {
        if (names[static_cast<std::size_t>(row)] == item.text &&
            list.Text(row, item.list.enabledColumn) == (enabled ? "True" : "False") &&
            (item.scope.empty() || list.Text(row, item.list.scopeColumn) == item.scope)) {
            return row;
        }
    }
    return std::nullopt;
}

int BrowserTest::RowOfItem(const SampleItem& item, bool enabled) {
    const std::optional<int> row = FindItem(item, enabled);
    EXPECT_TRUE(row) << item.text << (enabled ? " isn't listed" : " isn't listed as disabled");
    return row.value_or(0);
}

bool BrowserTest::IsListed(const SampleItem& item, bool enabled) {
    return FindItem(item, enabled).has_value();
}

void BrowserTest::SelectItem(const SampleItem& item, bool enabled) {
    SelectRow(Running().List(item.list.list), RowOfItem(item, enabled));
}

void BrowserTest::TickItem(const SampleItem& item, bool enabled) {
    Tick(Running().List(item.list.list), RowOfItem(item, enabled));
}

std::vector<std::string> BrowserTest::RegistryFiles() const {
    std::vector<std::string> names;
    std::error_code failure;
    for (const auto& file : std::filesystem::directory_iterator(install_.Path("Backup"), failure)) {
        if (file.path().extension() == ".reg") names.push_back(file.path().filename().string());
    }
    return names;
}

std::string TitleOf(const testing::TestParamInfo<SampleItem>& each) {
    return each.param.title;
}

}  // namespace velkarix::e2e
