#pragma once

#include "platform/dialogs.h"

namespace horavex {

/// Message boxes and file dialogues of the toolkit, over the window that the user works with. Texts
/// are shown as they stand, never as markup.
class QtDialogs : public Dialogs {
public:
    void ShowMessage(const std::string& text, const std::string& title, MessageIcon icon) override;
    void Beep() override;
    std::string SaveFile(const FileRequest& request, const std::string& suffix) override;
};

}  // namespace horavex
