// Any data of any type and size at the places that the pages read, coming also while a page is on
// view, and a user who does anything there: the program goes on, closes what it opens, shows what
// is there and loses nothing.
#include <algorithm>
#include <iterator>
#include <span>

#include "fuzzing/FuzzTarget.h"
#include "fuzzing/Gestures.h"
#include "fuzzing/PageData.h"
#include "fuzzing/PageLists.h"
#include "fuzzing/StandingItems.h"
#include "startup/StartupColumns.h"
#include "startup/StartupPlaces.h"
#include "tests/machine/TestProgram.h"

namespace velkarix {

namespace {

// The buffers that names are listed with: one that doesn't fit ends the list.
constexpr std::size_t KeyCapacity = 255;
constexpr std::size_t ValueCapacity = 260;

std::span<const std::string> Listed(const std::vector<std::string>& names, std::size_t capacity) {
    const auto end = std::find_if(names.begin(), names.end(),
                                  [&](const std::string& name) { return name.size() >= capacity; });
    return {names.begin(), end};
}

class Session {
  public:
    Session(FuzzInput& input, const char* page, NamedSystem system, bool hasCopyKey)
        : input_(input), page_(page), machine_(system), program_(machine_) {
        machine_.registry.SetHasCopyKey(hasCopyKey);
        program_.application.DisabledRoot = "Software\\Velkarix\\Disabled\\";
        PutCommonParts(machine_);
    }

    void Run() {
        constexpr auto PartCount = static_cast<std::size_t>(PagePart::Count);
        while (!input_.AtEnd()) {
            const std::size_t step = input_.Below(PartCount + 1);
            if (step == PartCount) {
                Act();
            } else {
                PutPart(input_, static_cast<PagePart>(step), program_.application, machine_);
            }
        }
        if (Page() == nullptr) Open();
    }

  private:
    Form* Page() { return program_.application.forms.Loaded(page_); }

    void Open() {
        program_.application.forms.Show(page_);
        ExpectAllClosed();
        if (page_ == FuzzedPages[0]) ExpectItemsShown();
        if (page_ == FuzzedPages[1]) ExpectRunsShown();
    }

    void Act() {
        if (Page() == nullptr) Open();
        PassAMinute();
        const StandingItems before(machine_);
        RecordingDesktop& desktop = program_.desktop;
        desktop.messages.clear();
        desktop.answers.assign(2, input_.Flag() ? MessageAnswer::Yes : MessageAnswer::No);
        desktop.nextSaveFile = "C:\\Report.txt";
        MakeGesture(input_, *Page());
        const bool isDeletion = std::any_of(
            desktop.messages.begin(), desktop.messages.end(),
            [](const Message& message) { return message.icon == MessageIcon::Question; });
        const std::string lost = before.FindLost(machine_, isDeletion);
        Expect(lost.empty(), "nothing is lost", lost);
        Expect(!program_.application.itemChangeRuns, "a command ends");
        ExpectAllClosed();
    }

    // Backups that are made in one second replace each other.
    void PassAMinute() {
        constexpr FileTime Minute = 600'000'000;
        time_ += Minute;
        machine_.clock.SetLocalTime(ToSystemTime(time_));
    }

    void ExpectAllClosed() {
        Expect(machine_.registry.OpenKeyCount() == 0 && machine_.files.OpenFileCount() == 0 &&
                   machine_.files.OpenSearchCount() == 0 && machine_.shell.OpenIconCount() == 0 &&
                   machine_.processes.OpenHandleCount() == 0,
               "what was opened is closed");
    }

    void ExpectItemsShown() {
        for (const PageList& list : PageLists) {
            if (!list.showsAll) continue;
            std::size_t count = 0;
            for (const ItemPlace& place : list.places.places) {
                count += CountItems(list.places.kind, place, true);
                count += CountItems(list.places.kind, place, false);
            }
            Expect(program_.Get<ListView>(page_, list.list).RowCount() == count,
                   "each item is shown", list.list);
        }
    }
    std::size_t CountItems(ItemKind kind, const ItemPlace& place, bool enabled) {
        const std::string holder = HoldingKey(program_.application, place, enabled);
        if (kind == ItemKind::Key) {
            const auto keys = machine_.registry.SubKeysOf(place.hive, holder);
            return Count(Listed(keys, KeyCapacity), [](char first) { return first != '\0'; });
        }
        const auto values = machine_.registry.ValueNamesOf(place.hive, holder);
        return Count(Listed(values, ValueCapacity), [](char first) { return first == '{'; });
    }
    static std::size_t Count(std::span<const std::string> names, bool (*counts)(char first)) {
        return static_cast<std::size_t>(std::count_if(
            names.begin(), names.end(),
            [&](const std::string& name) { return !name.empty() && counts(name.front()); }));
    }

    void ExpectRunsShown() {
        auto& list = program_.Get<ListView>(page_, "lstvStartup");
        std::size_t shown = 0;
        for (std::size_t i = 0; i < list.RowCount(); ++i) {
            if (FindRunKey(list.Row(i).Text(startupColumn::Location)) != nullptr) ++shown;
        }
        std::size_t count = 0;
        for (const RunKey& run : RunKeys) {
            for (const bool enabled : {true, false}) {
                const std::string key = RunKeyPath(program_.application, run, enabled);
                const auto names = machine_.registry.ValueNamesOf(run.hive, key);
                count += Listed(names, ValueCapacity).size();
            }
        }
        Expect(shown == count, "each value is shown");
    }

    FuzzInput& input_;
    std::string page_;
    FileTime time_ = ToFileTime(MakeTime(2004, 6, 1));
    MemoryMachine machine_;
    RunningProgram program_;
};

}  // namespace

void RunInput(FuzzInput& input) {
    const char* page = FuzzedPages[input.Below(std::size(FuzzedPages))];
    const NamedSystem system = allNamedSystems[input.Below(allNamedSystems.size())];
    const bool hasCopyKey = !input.Flag();
    Session(input, page, system, hasCopyKey).Run();
}

}  // namespace velkarix
