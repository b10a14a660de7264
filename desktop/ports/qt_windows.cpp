#include "desktop/ports/qt_windows.h"

#include <QCursor>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QScreen>
#include <QWindow>
#include <algorithm>

#include "desktop/face/face_menu_look.h"
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

/// nullptr for a form without a window and for a menu that it does not have.
const MenuItem* MenuOf(const FormWindow* window, const std::string& name) {
    return window == nullptr ? nullptr : FindMenu(window->Shown(), name);
}

/// A hidden window cannot stand behind its menu.
void RunMenuOver(FormWindow& window, const MenuItem& menu, QPoint place, const MenuLook& look) {
    RunMenu(menu, window.isVisible() ? &window : nullptr, place, look);
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

// As far from the edge where reading begins as the place lies from the left.
void QtWindows::PopUpMenu(const std::string& form, const std::string& menu, int x, int y) {
    FormWindow* window = windows_.Find(form);
    if (const MenuItem* item = MenuOf(window, menu)) {
        const QPoint place(RunsFromRight(*item) ? window->width() - x : x, y);
        RunMenuOver(*window, *item, window->mapToGlobal(place), FaceMenuLook());
    }
}

void QtWindows::PopUpMenuAtPointer(const std::string& form, const std::string& menu) {
    FormWindow* window = windows_.Find(form);
    if (const MenuItem* item = MenuOf(window, menu)) {
        RunMenuOver(*window, *item, QCursor::pos(), {});
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
