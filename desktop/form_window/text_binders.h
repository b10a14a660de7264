#pragma once

#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>

#include "desktop/form_window/binder_of.h"
#include "desktop/form_window/typed_line.h"
#include "forms/command_button.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/text_box.h"

namespace horavex {

// Controls that show one text.

class FrameBinder : public BinderOf<Frame, QGroupBox> {
public:
    using BinderOf::BinderOf;

protected:
    void Show() override;
};

/// A mere outline: there is nothing to show but its visibility.
class ShapeBinder : public BinderOf<Shape, QFrame> {
public:
    using BinderOf::BinderOf;

protected:
    void Show() override {}
};

/// Labels and skin labels. The text runs in its own direction and stands at the side where the
/// window begins.
class LabelBinder : public BinderOf<Label, QLabel> {
public:
    using BinderOf::BinderOf;

protected:
    void Show() override;
    void Clicked() override;

private:
    void KeepEndsOfLines(bool fromRight);
    void MakeRoom();

    const QSize least_ = widget.minimumSize();  // as the layout states it
};

class CommandButtonBinder : public BinderOf<CommandButton, QPushButton> {
public:
    CommandButtonBinder(Control& bound, QWidget& boundWidget, RefreshLater refreshLater);

protected:
    void Show() override;
};

/// The cursor stays where it is unless the text is another one.
/// A text box of one line. A layout may have it steer a list, which its property "steers" names:
/// while the list is on view, the keys up and down move in it, and the box keeps the focus.
class TextBoxBinder : public BinderOf<TextBox, QLineEdit> {
public:
    TextBoxBinder(Control& bound, QWidget& boundWidget, RefreshLater refreshLater);

protected:
    void Show() override;

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    QWidget* SteeredList() const;
    void Steer(QWidget& list, QEvent& key);

    TypedLine line_;
};

/// A text box of several lines that users can only read. For a table whose rows have pictures at
/// their side a layout gives the rows' least height in pixels, the property "lineHeight", their
/// number, "rows", and the name of the canvas, "rowPictures": box and canvas grow with the text.
class LinesBinder : public BinderOf<TextBox, QTextEdit> {
public:
    using BinderOf::BinderOf;

protected:
    void Show() override;

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void SetSideMargins();
    void FitRows(int leastHeight);
    void SetLineHeight(int pixels);
    void MarkLine();

    int marked_ = -1;
};

}  // namespace horavex
