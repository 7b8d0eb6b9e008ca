// What is on the screen: pictures for people, and counts of coloured pixels for tests.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace velkarix::e2e {

// Has a picture of the whole screen saved as `name`.png in the folder that VELKARIX_OUT names, and
// beside it `name`.areas, which says where on it each window of that process is: a line for each,
// with its product name, or its class where it has none, and its geometry as X programs write it
// ("cmdKill 97x24+397+463"). False when there is no such folder, or nobody takes pictures.
bool SaveScreenshot(const std::string& name, DWORD processId);

// What an area of the screen shows now, to be compared with what it shows later. Here and below
// the test fails when the area can't be seen.
class Capture {
  public:
    explicit Capture(const RECT& area);
    // How many pixels of `area` differ, as far as both show it.
    int Differing(const Capture& other, const RECT& area) const;

  private:
    DWORD At(LONG x, LONG y) const;

    RECT area_;
    std::vector<DWORD> pixels_;
};

// How many pixels of an area of the screen satisfy `counts`.
int CountPixels(const RECT& area, const std::function<bool(COLORREF)>& counts);

// The colour of dark writing on light ground: the darkest there is in that area.
COLORREF TextColor(const RECT& area);

// Whether a colour, also one softened at the edge of a letter, is mostly red.
bool IsReddish(COLORREF color);

}  // namespace velkarix::e2e
