// The keys that forms give a meaning to.
#pragma once

namespace velkarix {

enum class Key {
    C,
    F,
    P,
    Digit1,
    Digit2,
    Digit3,
    Digit4,
    Digit5,
    Digit6,
    Enter,
    Escape,
    Delete,
    F3,
    F5,
};

// A key together with the keys that are held; Alt never is.
struct KeyStroke {
    Key key;
    bool control = false;
    bool shift = false;

    friend bool operator==(const KeyStroke&, const KeyStroke&) = default;
};

}  // namespace velkarix
