#pragma once

#include "platform/dialogs.h"

namespace horavex {

/// Message boxes of the toolkit, over the window that the user works with. Texts are shown as
/// they stand, never as markup.
class QtDialogs : public Dialogs {
public:
    void ShowMessage(const std::string& text, const std::string& title, MessageIcon icon) override;
    void Beep() override;
};

}  // namespace horavex
