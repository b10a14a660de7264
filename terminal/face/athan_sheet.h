#pragma once

#include "terminal/face/terminal_face.h"
#include "terminal/forms/form_sheet.h"

namespace horavex {

/// The athan window: a card in front of everything with the prayer and a button that stops it. Keys
/// that are not the button's go to what lies below.
class AthanSheet : public FormSheet {
public:
    AthanSheet(Form& form, Host& host, TerminalFace& face);

    void Draw(Cells& screen) override;
    void Press(const KeyPress& key) override;
    void FormChanged() override;
    bool IsModal() const override { return false; }
    bool StaysInFront() const override { return true; }

private:
    bool IsUp() const;

    TerminalFace& face_;
};

}  // namespace horavex
