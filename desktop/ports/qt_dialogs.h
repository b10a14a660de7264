#pragma once

#include <functional>
#include <utility>

#include "platform/dialogs.h"

namespace horavex {

/// Message boxes and file dialogues of the toolkit, over the window that the user works with. Texts
/// are shown as they stand, never as markup.
class QtDialogs : public Dialogs {
public:
    explicit QtDialogs(std::function<void()> beep) : beep_(std::move(beep)) {}

    void ShowMessage(const std::string& text, const std::string& title, MessageIcon icon) override;
    std::string OpenFile(const FileRequest& request) override;
    std::string SaveFile(const FileRequest& request, const std::string& suffix) override;
    void Beep() override { beep_(); }

private:
    std::function<void()> beep_;
};

}  // namespace horavex
