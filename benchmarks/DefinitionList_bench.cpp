#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Benchmarks.h"
#include "Comparison.h"
#include "HostFiles.h"
#include "shell/DefinitionList.h"

namespace velkarix {
namespace {

constexpr std::size_t EntryCount = 1'000'000;
constexpr std::size_t Questions = 1000;
constexpr std::size_t PlainQuestions = 10;  // of which each takes as long as a thousand others
constexpr int Passes = 3;
constexpr std::size_t BlockSize = std::size_t{256} * 1024;  // as LoadDefinitionList reads

// The list once more for each question of speed, so that no run profits from the one before.
struct Lists {
    explicit Lists(const std::string& file) : path(file) {
        LoadDefinitionList(files, list, path);
        std::uint64_t state = 3;
        for (std::size_t i = 0; i < Questions; ++i) absent.push_back(RandomDigest(state));
    }

    HostFiles files;
    std::string path;
    DefinitionList list;
    std::vector<std::string> absent;
};

double AskAll(const DefinitionList& list, const std::vector<std::string>& questions) {
    int found = 0;
    const double seconds = SecondsOf([&] {
        for (const std::string& question : questions) found += ListContains(list, question);
    });
    if (found != 0) std::abort();
    return seconds;
}

double AskPlainly(std::string_view text, const std::vector<std::string>& questions) {
    std::size_t found = 0;
    const double seconds = SecondsOf([&] {
        for (std::size_t i = 0; i < PlainQuestions; ++i) {
            found += text.find(questions[i]) != std::string_view::npos;
        }
    });
    if (found != 0) std::abort();
    return seconds;
}

double PassOver(std::string_view text) {
    return SecondsOf([&] {
        for (int pass = 0; pass < Passes; ++pass) {
            benchmark::DoNotOptimize(std::memchr(text.data(), '~', text.size()));
        }
    });
}

double Load(Lists& lists) {
    DefinitionList loaded;
    const double seconds = SecondsOf([&] { LoadDefinitionList(lists.files, loaded, lists.path); });
    if (loaded.Text().size() != lists.list.Text().size()) std::abort();
    return seconds;
}

// Reads the file into memory and does nothing else.
double JustRead(Lists& lists) {
    std::unique_ptr<std::uint8_t[]> memory;
    std::size_t size = 0;
    const double seconds = SecondsOf([&] {
        FileHandle file = 0;
        if (lists.files.CreateFileA(lists.path, FileUse::Read, file) != error::Success) return;
        const std::size_t length = lists.files.GetFileSize(file).value_or(0);
        memory.reset(new std::uint8_t[length + 1]);
        for (std::uint32_t read = 1; read != 0; size += read) {
            const std::size_t room = std::min(BlockSize, length + 1 - size);
            if (lists.files.ReadFile(file, {memory.get() + size, room}, read) != error::Success) {
                break;
            }
        }
        lists.files.CloseFile(file);
    });
    benchmark::DoNotOptimize(memory.get());
    if (size != EntryCount * 34) std::abort();
    return seconds;
}

}  // namespace

void AddDefinitionListBenchmarks(const BenchFiles& files) {
    // Made when the first of its benchmarks runs, which may be none of them.
    const auto lists = std::make_shared<std::optional<Lists>>();
    const auto get = [lists, &files]() -> Lists& {
        if (!*lists) lists->emplace(files.DigestList(EntryCount));
        return **lists;
    };
    constexpr std::size_t TextSize = EntryCount * 33;

    AddBenchmark("ListContains_1000_absent", 0, [get] { return AskAll(get().list, get().absent); });
    AddBenchmark("memchr_3_passes", Passes * TextSize,
                 [get] { return PassOver(get().list.Text()); });
    AddBenchmark("string_find_10_absent", PlainQuestions * TextSize,
                 [get] { return AskPlainly(get().list.Text(), get().absent); });
    AddBenchmark("LoadDefinitionList", TextSize, [get] { return Load(get()); });
    AddBenchmark("read_list_file", TextSize, [get] { return JustRead(get()); });

    AddComparison({"ListContains_1000_absent", "memchr_3_passes", 1});
    AddComparison({"ListContains_1000_absent", "string_find_10_absent"});
    AddComparison({"LoadDefinitionList", "read_list_file", 2});
}

}  // namespace velkarix
