#pragma once

#include "platform/windows.h"
#include "terminal/forms/form_sheets.h"
#include "terminal/ports/no_printer.h"

namespace horavex {

/// Windows on a terminal lie where there is room for them; a menu opens below its title.
class TerminalWindows : public Windows {
public:
    TerminalWindows(FormSheets& sheets, Desk& desk) : sheets_(sheets), desk_(desk) {}

    ScreenSize Screen() override;
    ScreenCorner WorkArea() override;
    void StartDrag(const std::string&) override {}
    void PopUpMenu(const std::string& form, const std::string& menu, int x, int y) override;
    void PopUpMenuAtPointer(const std::string& form, const std::string& menu) override;
    void Activate(const std::string& form) override;
    void SetForeground(const std::string& form) override { Activate(form); }
    void SetTopMost(const std::string&, bool) override {}
    void Print(const std::string&) override { SayNoPrinter(); }

private:
    FormSheets& sheets_;
    Desk& desk_;
};

}  // namespace horavex
