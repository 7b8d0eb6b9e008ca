// How marked rows look: the user's colours and weight.
#pragma once

#include <cstdint>

#include "forms/ListView.h"

namespace velkarix {

struct Appearance {
    Color SusColor = 255;       // a suspicious row: red
    Color DisColor = 8421504;   // a disabled row: grey
    Color SusDisColor = 64;     // both: dark red
    std::int16_t FontBold = 1;  // 1: suspicious rows are bold
};

}  // namespace velkarix
