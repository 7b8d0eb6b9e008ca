// How well two colours can be told apart, and what follows for what is written in them.
#pragma once

#include "base/Color.h"

namespace velkarix {

// The letters of a text and what they stand on.
struct TextColors {
    Color text = 0;
    Color ground = 0;
    friend bool operator==(const TextColors&, const TextColors&) = default;
};

// From 1, which is the same colour twice, to 21, which is black and white; as the Web Content
// Accessibility Guidelines 2 define it. Which of the two is the text makes no difference.
double ContrastRatio(Color one, Color other);

// How a mark is shown on that ground: in its colour as long as that can be read there, else the
// other way round, on its colour, in black or white.
TextColors MarkColors(Color mark, Color ground);

// Whether a system whose dialogs have these colours is set up for somebody who needs contrast: in
// light letters on a dark ground, or in black ones on pure white.
bool IsHighContrast(const TextColors& dialog);

}  // namespace velkarix
