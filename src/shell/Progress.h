// What the program is busy with, for the user to see: events aren't served meanwhile. Pieces of
// work may stand one inside the other; the innermost that looks at something is what is shown, and
// what it has done counts for the piece around it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Clock.h"

namespace velkarix {

class Progress {
  public:
    // Who shows it.
    class View {
      public:
        virtual ~View() = default;
        // Is to be seen at once. `share` is how much is done, 0 to 1; nothing when nobody knows.
        virtual void ShowProgress(const std::string& text, std::optional<double> share) = 0;
        // The last piece of work is done, whether it was shown or not.
        virtual void EndProgress() = 0;
    };

    // A piece of work while it lives.
    class Work {
      public:
        // `what` is for the user; `total` is how many steps there will be, 0 when that isn't known.
        Work(Progress& progress, std::string what, std::size_t total = 0);
        ~Work();
        Work(const Work&) = delete;
        Work& operator=(const Work&) = delete;

        // The next step begins, which looks at `item`. It costs next to nothing: what is shown
        // changes at most ten times a second, and not before a tenth of a second has gone by.
        void Step(std::string_view item);

      private:
        friend class Progress;
        Progress& progress_;
        Work* const around_;
        std::string what_;
        std::size_t total_;
        std::size_t begun_ = 0;
        double most_ = 0;  // the largest share so far
    };

    explicit Progress(Clock& clock) : clock_(clock) {}
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    // Null: nobody shows it. The view outlives what it shows, or takes itself away.
    void SetView(View* view) { view_ = view; }
    // Whether any work is under way.
    bool Busy() const { return innermost_ != nullptr; }

  private:
    std::optional<double> Share() const;

    Clock& clock_;
    View* view_ = nullptr;
    Work* innermost_ = nullptr;
    std::uint32_t lastShown_ = 0;  // in ticks of the clock
};

}  // namespace velkarix
