#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/dialogs.h"
#include "terminal/forms/form_sheet.h"

namespace horavex {

/// Boxes on the screen, and a line to type the path of a file into.
class TerminalDialogs : public Dialogs {
public:
    TerminalDialogs(FormSheet::Host& host, std::function<void()> beep)
        : host_(host), beep_(std::move(beep)) {}

    void ShowMessage(const std::string& text, const std::string& title, MessageIcon icon) override;
    std::string OpenFile(const FileRequest& request) override;
    void Beep() override { beep_(); }
    std::string SaveFile(const FileRequest& request, const std::string& suffix) override;

private:
    std::size_t Ask(const std::string& title, const std::string& text,
                    const std::vector<std::string>& buttons);
    std::string AskPath(const std::string& title, const std::string& proposed);
    bool MayWrite(const std::string& path);

    FormSheet::Host& host_;
    std::function<void()> beep_;
};

}  // namespace horavex
