#pragma once

#include "terminal/screen/sheet.h"

namespace horavex {

/// A sheet that waits for the user and is then at its end; nothing else gets keys meanwhile.
class EndingSheet : public Sheet {
public:
    bool IsModal() const override { return true; }
    bool HasEnded() const { return hasEnded_; }
    void End() { hasEnded_ = true; }

private:
    bool hasEnded_ = false;
};

}  // namespace horavex
