#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include "desktop/form_window/form_windows.h"
#include "desktop/kinds_form.h"
#include "support/test_platform.h"

namespace horavex {

/// A form of every kind in its window.
class FormWindowTest : public testing::Test {
protected:
    ~FormWindowTest() override {
        form.onCloseRequest = nullptr;
        form.Unload();
        Settle();
    }

    /// Lets pending refreshes and deletions happen.
    static void Settle() {
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void Show() {
        form.Show();
        Settle();
    }

    FormWindow& Window() { return *windows.Find(&form); }

    template <class Widget>
    Widget& Find(const char* name) {
        return *Window().findChild<Widget*>(QString::fromUtf8(name));
    }

    static void Press(QWidget& widget, QEvent::Type type, Qt::MouseButton button = Qt::LeftButton) {
        const QPointF at = QRectF(widget.rect()).center();
        QMouseEvent event(type, at, widget.mapToGlobal(at), button, button, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }

    static void Click(QWidget& widget) {
        Press(widget, QEvent::MouseButtonPress);
        Press(widget, QEvent::MouseButtonRelease);
    }

    static void Key(QWidget& widget, int key, const QString& text = {}) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
        QApplication::sendEvent(&widget, &press);
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
        QApplication::sendEvent(&widget, &release);
    }

    TestPlatform platform;
    KindsForm form;
    FormWindows windows{Layouts{{"KindsForm", FillKinds}}};
};

}  // namespace horavex
