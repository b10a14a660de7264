#pragma once

#include <memory>

#include "platform/absent_desktop.h"
#include "terminal/forms/form_sheet.h"
#include "terminal/sheets/help_sheet.h"

namespace horavex {

/// The help lies on the screen, an address is shown as a text to be copied, and nothing is started.
class TerminalShell : public AbsentShell {
public:
    explicit TerminalShell(FormSheet::Host& host) : host_(host) {}

    void OpenAddress(const std::string& address) override;
    void ShowHelp(const HelpView& view) override;
    void CloseHelp() override;

private:
    FormSheet::Host& host_;
    std::shared_ptr<HelpSheet> help_;  // nullptr while it is closed
};

}  // namespace horavex
