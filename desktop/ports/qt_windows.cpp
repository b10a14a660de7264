#include "desktop/ports/qt_windows.h"

#include <QCursor>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QScreen>
#include <QWindow>
#include <algorithm>

#include "desktop/face/face_menu_colours.h"
#include "desktop/form_window/face_screen.h"
#include "desktop/form_window/menu.h"
#include "desktop/form_window/twips.h"
#include "desktop/look/paper_look.h"

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
    const QSize size = FaceScreen().size();
    return {TwipsOf(size.width()), TwipsOf(size.height())};
}

ScreenCorner QtWindows::WorkArea() {
    const QRect area = FaceScreen().availableGeometry();
    return {TwipsOf(area.x() + area.width()), TwipsOf(area.y() + area.height())};
}

void QtWindows::StartDrag(const std::string& form) {
    const FormWindow* window = windows_.Find(form);
    if (window != nullptr && window->windowHandle() != nullptr) {
        window->windowHandle()->startSystemMove();
    }
}

void QtWindows::PopUpMenu(const std::string& form, const std::string& menu, int x, int y) {
    const FormWindow* window = windows_.Find(form);
    if (window != nullptr) {
        RunMenuOf(form, menu, window->mapToGlobal(QPoint(x, y)), {FaceMenuColours(), true});
    }
}

void QtWindows::PopUpMenuAtPointer(const std::string& form, const std::string& menu) {
    RunMenuOf(form, menu, QCursor::pos(), {});
}

// Only the face has menus at a place of its own. A hidden window cannot stand behind its menu.
void QtWindows::RunMenuOf(const std::string& form, const std::string& menu, QPoint place,
                          const MenuLook& look) {
    FormWindow* window = windows_.Find(form);
    const MenuItem* item = window == nullptr ? nullptr : FindMenu(window->Shown(), menu);
    if (item != nullptr) {
        RunMenu(*item, window->isVisible() ? window : nullptr, place, look);
    }
}

void QtWindows::Activate(const std::string& form) {
    FormWindow* window = windows_.Find(form);
    if (window != nullptr && window->isVisible()) {
        window->activateWindow();
    }
}

void PrintWindow(QWidget& window, QPaintDevice& paper) {
    const look::PaperLook light(window);
    QPainter painter(&paper);
    const QRectF page = painter.viewport();
    const double scale = std::min(page.width() / window.width(), page.height() / window.height());
    painter.scale(scale, scale);
    window.render(&painter);
}

void QtWindows::Print(const std::string& form) {
    FormWindow* window = windows_.Find(form);
    if (window == nullptr || !window->isVisible()) {
        return;
    }
    QPrinter printer;
    if (QPrintDialog(&printer, window).exec() == QDialog::Accepted) {
        PrintWindow(*window, printer);
    }
}

void QtWindows::SetForeground(const std::string& form) {
    FormWindow* window = windows_.Find(form);
    if (window != nullptr && window->isVisible()) {
        window->raise();
        window->activateWindow();
    }
}

void QtWindows::SetTopMost(const std::string& form, bool topMost) {
    FormWindow* window = windows_.Find(form);
    if (window == nullptr || window->windowHandle() == nullptr) {
        return;
    }
    // The widget's own way would take the window from the screen and put it back.
    window->windowHandle()->setFlag(Qt::WindowStaysOnTopHint, topMost);
    window->overrideWindowFlags(window->windowHandle()->flags());
    if (topMost) {
        window->raise();
    }
}

}  // namespace horavex
