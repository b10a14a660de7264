#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>

#include "desktop/face/poster_view.h"
#include "desktop/face/qt_face.h"
#include "desktop/face/strip_view.h"
#include "desktop/face_values.h"
#include "sky/day_sky.h"
#include "support/test_platform.h"

namespace horavex {

/// The one that fills the screen; nullptr for none.
inline PosterView* Poster() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* poster = dynamic_cast<PosterView*>(widget);
            poster != nullptr && poster->isVisible()) {
            return poster;
        }
    }
    return nullptr;
}

/// A face at noon in Cairo, in a window of its own.
class FaceShapesTest : public testing::Test {
protected:
    FaceShapesTest() {
        face.onFSCommand = [this](const std::string& command, const std::string&) {
            commands.push_back(command);
        };
        face.Fill(window);
        face.LoadMovie(0, "");
        window.show();
        TellEnglish(face);
    }

    static void Press(QWidget& widget, Qt::Key key, bool repeats = false) {
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier, {}, repeats);
            QApplication::sendEvent(&widget, &event);
        }
    }
    StripView* Strip() { return dynamic_cast<StripView*>(window.layout()->itemAt(1)->widget()); }
    QSize SizeOfWindow() {
        QApplication::processEvents();
        return window.size();
    }

    TestPlatform platform;
    QtFace face;
    QWidget window;
    std::vector<std::string> commands;
};

/// Sums up what is painted.
class PaintedRegion : public QObject {
public:
    explicit PaintedRegion(QWidget& widget) { widget.installEventFilter(this); }
    QRegion region;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            region += static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }
};

}  // namespace horavex
