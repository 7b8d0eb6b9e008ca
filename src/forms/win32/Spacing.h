// The lengths that are a matter of taste, at 96 DPI: a small screen has less to give to them.
#pragma once

namespace velkarix {

struct Spacing {
    int gap;           // between two neighbours
    int margin;        // inside the edges of a form
    int frameEdge;     // inside a frame
    int tabEdge;       // inside what the native control keeps of a tab's area
    int buttonSides;   // beside the caption of a command button, both sides together
    int buttonWidth;   // of a command button, at least
    int pictureSides;  // beside the caption of a picture button, both sides together
    int markWidth;     // of the mark at the edge of the current picture button
    int pagePicture;   // edge of the picture on a page's button
    int viewPicture;   // likewise on a button of a longer strip
    int paragraph;     // least width of a paragraph, in average letters
};

inline constexpr Spacing Roomy{7, 11, 9, 5, 20, 75, 16, 4, 48, 24, 60};
inline constexpr Spacing Tight{4, 6, 5, 2, 8, 60, 10, 3, 32, 16, 60};
inline constexpr Spacing Tightest{3, 4, 4, 1, 8, 40, 6, 3, 16, 16, 32};

// The least work area that has room for the roomy one, and for the tight one.
struct Room {
    int width;
    int height;
};
inline constexpr Room RoomForRoomy{760, 560};
inline constexpr Room RoomForTight{560, 400};

}  // namespace velkarix
