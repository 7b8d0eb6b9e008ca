// A command that moves or deletes items while it lives. Events are served meanwhile, so another
// such command could begin in the middle of it, and take away what this one has just copied: it
// isn't begun.
#pragma once

#include "shell/Application.h"

namespace velkarix {

class ItemChange {
  public:
    explicit ItemChange(Application& application)
        : application_(application), begun_(!application.itemChangeRuns) {
        application_.itemChangeRuns = true;
    }
    ItemChange(const ItemChange&) = delete;
    ItemChange& operator=(const ItemChange&) = delete;
    ~ItemChange() {
        if (begun_) application_.itemChangeRuns = false;
    }

    // False when another one runs: the command does nothing then.
    bool Begun() const { return begun_; }

  private:
    Application& application_;
    bool begun_;
};

}  // namespace velkarix
