#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QTabBar>
#include <QVBoxLayout>

#include "desktop/form_window/canvas.h"
#include "desktop/form_window/layouts.h"
#include "forms/check_box.h"
#include "forms/combo_box.h"
#include "forms/command_button.h"
#include "forms/control_array.h"
#include "forms/form.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/list.h"
#include "forms/menu_item.h"
#include "forms/option_button.h"
#include "forms/picture.h"
#include "forms/range.h"
#include "forms/text_box.h"
#include "forms/timer.h"

namespace horavex {

/// A form with one control of each kind.
class KindsForm : public Form {
public:
    KindsForm() : Form("KindsForm", {.caption = "Kinds", .width = 6000, .height = 9000}) {}

    Frame frame{*this, "frame", {.caption = "A frame"}};
    ControlArray<OptionButton> option{
        frame, "option", {{1, {.caption = "One"}}, {2, {.caption = "Two"}}}};
    Shape shape{*this, "shape"};
    Label label{*this, "label", {.caption = "A label"}};
    SkinLabel skinLabel{*this, "skinLabel", {.caption = "A skin label"}};
    CommandButton button{*this, "button", {.caption = "&Button"}};
    CheckBox check{*this, "check", {.caption = "Check"}};
    TextBox text{*this, "text", {.text = "text"}};
    ListBox list{*this, "list", {.items = {"a", "b", "c"}}};
    ComboBox combo{*this, "combo", {.items = {"x", "y"}}};
    ComboBox choice{*this, "choice", {.items = {"p", "q", "r"}, .typed = false}};
    ScrollBar scroll{*this, "scroll", {.value = 5, .max = 20, .largeStep = 4}};
    Slider slider{*this, "slider", {.max = 4}};
    ProgressBar progress{*this, "progress", {.max = 100}};
    Picture picture{*this, "picture", {.width = 600, .height = 600}};
    TabStrip tabs{*this, "tabs", {.items = {"First", "Second"}}};
    Timer timer{*this, "timer", {.enabled = false, .intervalMs = 30}};
    MenuItem menu{*this, "menu", {.caption = "Menu"}};
};

/// Adds a widget below the others.
template <class Widget>
Widget* AddWidget(QWidget& window, const char* name, QWidget* parent = nullptr) {
    QWidget* place = parent == nullptr ? &window : parent;
    auto* widget = new Widget(place);
    widget->setObjectName(QString::fromUtf8(name));
    place->layout()->addWidget(widget);
    return widget;
}

inline void FillKinds(QWidget& window) {
    (new QVBoxLayout(&window))->setSpacing(4);
    auto* frame = AddWidget<QGroupBox>(window, "frame");
    new QVBoxLayout(frame);
    AddWidget<QRadioButton>(window, "option_1", frame);
    AddWidget<QRadioButton>(window, "option_2", frame);
    AddWidget<QFrame>(window, "shape");
    AddWidget<QLabel>(window, "label");
    AddWidget<QLabel>(window, "skinLabel");
    AddWidget<QPushButton>(window, "button");
    AddWidget<QCheckBox>(window, "check")->setProperty("namedBy", "check label");
    AddWidget<QLineEdit>(window, "text")->setProperty("namedBy", "label");
    AddWidget<QListWidget>(window, "list");
    auto* combo = AddWidget<QComboBox>(window, "combo");
    combo->setEditable(true);
    combo->setProperty("namedBy", "label");
    AddWidget<QComboBox>(window, "choice");
    auto* scroll = AddWidget<QScrollBar>(window, "scroll");
    scroll->setOrientation(Qt::Horizontal);
    scroll->setFocusPolicy(Qt::StrongFocus);
    AddWidget<QSlider>(window, "slider")->setOrientation(Qt::Horizontal);
    AddWidget<QProgressBar>(window, "progress");
    AddWidget<Canvas>(window, "picture");
    AddWidget<QTabBar>(window, "tabs");
}

}  // namespace horavex
