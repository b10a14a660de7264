#include "desktop/ports/qt_windows.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include "desktop/form_window/menu.h"
#include "desktop/form_window/twips.h"
#include "windows/frm_main.h"

namespace horavex {

namespace {

const MenuItem* FindMenu(const Form& form, const std::string& name) {
    for (const Control* control : form.Controls()) {
        if (control->Kind() == ControlKind::kMenuItem && control->Name() == name) {
            return static_cast<const MenuItem*>(control);
        }
    }
    return nullptr;
}

}  // namespace

ScreenSize QtWindows::Screen() {
    const FormWindow* face = windows_.Find(&*frmMain);
    const QScreen* screen = face == nullptr ? QGuiApplication::primaryScreen() : face->screen();
    return {TwipsOf(screen->size().width()), TwipsOf(screen->size().height())};
}

void QtWindows::StartDrag(const std::string& form) {
    const FormWindow* window = windows_.Find(form);
    if (window != nullptr && window->windowHandle() != nullptr) {
        window->windowHandle()->startSystemMove();
    }
}

void QtWindows::PopUpMenu(const std::string& form, const std::string& menu, int x, int y) {
    FormWindow* window = windows_.Find(form);
    const MenuItem* item = window == nullptr ? nullptr : FindMenu(window->Shown(), menu);
    if (item != nullptr) {
        RunMenu(*item, window, window->mapToGlobal(QPoint(x, y)));
    }
}

}  // namespace horavex
