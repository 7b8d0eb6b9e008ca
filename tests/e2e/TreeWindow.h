// A tree of the program under test: its nodes and what is selected, read and used from outside.
#pragma once

#include <windows.h>
#include <commctrl.h>

#include <string>
#include <vector>

#include "Window.h"

namespace velkarix::e2e {

// A node is named by the texts on the way to it, as in "All Items/Current User/Registry".
class TreeWindow : public Window {
  public:
    explicit TreeWindow(Window window) : Window(window) {}

    // All nodes from top to bottom, those of closed branches as well.
    std::vector<std::string> Nodes() const;
    std::string Selected() const;  // empty when none is
    bool Expanded(const std::string& node) const;
    // Which of its pictures of a node's state is shown, counted from 1; 0 for none.
    int StatePicture(const std::string& node) const;
    // Of its text, on the screen.
    RECT LabelArea(const std::string& node) const;

  private:
    struct Entry {
        HTREEITEM handle;
        std::string path;
        bool expanded;
    };
    void AddBranch(HTREEITEM first, const std::string& above, std::vector<Entry>& entries) const;
    std::vector<Entry> Entries() const;
    HTREEITEM Find(const std::string& node) const;
    HTREEITEM Next(HTREEITEM item, UINT relation) const;
    Entry Read(HTREEITEM item, const std::string& above) const;
};

}  // namespace velkarix::e2e
