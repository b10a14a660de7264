#pragma once

#include "desktop/form_window/form_windows.h"
#include "platform/windows.h"

class QPrinter;

namespace horavex {

/// Puts a picture of a window onto one page, at most as large as the page is, and light however
/// dark the window is.
void PrintWindow(QWidget& window, QPaintDevice& paper);

/// Forms that are not loaded have no window: what is asked of them does nothing.
class QtWindows : public Windows {
public:
    explicit QtWindows(const FormWindows& windows) : windows_(windows) {}

    ScreenSize Screen() override;
    ScreenCorner WorkArea() override;
    void StartDrag(const std::string& form) override;
    void PopUpMenu(const std::string& form, const std::string& menu, int x, int y) override;
    void PopUpMenuAtPointer(const std::string& form, const std::string& menu) override;
    void Activate(const std::string& form) override;
    void SetForeground(const std::string& form) override;
    void SetTopMost(const std::string& form, bool topMost) override;
    void Print(const std::string& form) override;

private:
    const FormWindows& windows_;
};

}  // namespace horavex
