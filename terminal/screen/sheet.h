#pragma once

#include "terminal/screen/cells.h"
#include "terminal/screen/key_press.h"

namespace horavex {

/// Something that lies on the screen: the face, a window, a menu, a box.
class Sheet {
public:
    virtual ~Sheet() = default;

    /// Draws itself over what lies below it.
    virtual void Draw(Cells& screen) = 0;

    /// Takes a key. The sheet may be off the desk by the time that this returns.
    virtual void Press(const KeyPress& key) = 0;

    /// Whether those below it get no keys.
    virtual bool IsModal() const { return false; }

    /// Whether it stays before all that comes later, and hands on what keys it has no use for.
    virtual bool StaysInFront() const { return false; }
};

}  // namespace horavex
