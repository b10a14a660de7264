#include "desktop/form_window/text_binders.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTextBlock>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QtMath>
#include <algorithm>

#include "desktop/form_window/caption_text.h"
#include "desktop/user_text.h"

namespace horavex {

void FrameBinder::Show() {
    widget.setTitle(ShownCaption(control, widget));
}

void LabelBinder::Show() {
    widget.setTextFormat(Qt::PlainText);
    // A label marks the key of the control that it stands before.
    widget.setText(widget.buddy() == nullptr ? UserText(control.Caption())
                                             : ShownCaption(control, widget));
    const bool fromRight = widget.layoutDirection() == Qt::RightToLeft;
    widget.setAlignment((fromRight ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute |
                        Qt::AlignVCenter);
    if (widget.wordWrap()) {
        KeepEndsOfLines(fromRight);
    }
    MakeRoom();
}

// The toolkit shifts a line that runs from the right by the blank where it was broken: the end of a
// full one would be cut.
void LabelBinder::KeepEndsOfLines(bool fromRight) {
    const int blank = fromRight ? widget.fontMetrics().horizontalAdvance(u' ') : 0;
    widget.setContentsMargins(blank, 0, 0, 0);
}

// What a layout states keeps its columns still, and must not cut a longer text.
void LabelBinder::MakeRoom() {
    if (!widget.wordWrap() && !least_.isNull()) {
        widget.ensurePolished();
        const QSize room = least_.expandedTo(widget.sizeHint());
        widget.setMinimumSize(least_.width() > 0 ? room.width() : 0,
                              least_.height() > 0 ? room.height() : 0);
    }
}

void LabelBinder::Clicked() {
    Hand([this] { control.UserClick(); });
}

CommandButtonBinder::CommandButtonBinder(Control& bound, QWidget& boundWidget,
                                         RefreshLater refreshLater)
    : BinderOf(bound, boundWidget, std::move(refreshLater)) {
    connect(&widget, &QPushButton::clicked, this,
            [this] { Hand([this] { control.UserClick(); }); });
}

void CommandButtonBinder::Show() {
    widget.setText(ShownCaption(control, widget));
}

TextBoxBinder::TextBoxBinder(Control& bound, QWidget& boundWidget, RefreshLater refreshLater)
    : BinderOf(bound, boundWidget, std::move(refreshLater)) {
    connect(&widget, &QLineEdit::textEdited, this, [this](const QString& text) {
        line_.Type(text);
        Hand([this, typed = TypedText(text)] { control.UserEdit(typed); });
    });
}

void TextBoxBinder::Show() {
    line_.Show(widget, control.Text());
}

QWidget* TextBoxBinder::SteeredList() const {
    const QString name = widget.property("steers").toString();
    auto* list = name.isEmpty() ? nullptr : widget.window()->findChild<QWidget*>(name);
    return list != nullptr && list->isVisible() ? list : nullptr;
}

// A row that the user chooses gives its list the focus, which comes back.
void TextBoxBinder::Steer(QWidget& list, QEvent& key) {
    QApplication::sendEvent(&list, &key);
    Hand([this] { control.UserFocus(); });
}

bool TextBoxBinder::eventFilter(QObject* watched, QEvent* event) {
    if (line_.IsLeftBy(*event)) {
        Hand([] {});
    }
    const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event)->key() : 0;
    QWidget* const list = key == Qt::Key_Up || key == Qt::Key_Down ? SteeredList() : nullptr;
    if (list == nullptr) {
        return BinderOf::eventFilter(watched, event);
    }
    Steer(*list, *event);
    return true;
}

void LinesBinder::Show() {
    const QString text = UserText(control.Text()).remove('\r');
    if (widget.toPlainText() == text && marked_ == control.MarkedLine()) {
        return;
    }
    marked_ = control.MarkedLine();
    widget.setPlainText(text);
    SetSideMargins();
    if (const int height = widget.property("lineHeight").toInt(); height > 0) {
        FitRows(height);
    }
    MarkLine();
}

bool LinesBinder::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::PaletteChange) {
        MarkLine();
    }
    return BinderOf::eventFilter(watched, event);
}

void LinesBinder::MarkLine() {
    const QTextBlock line = widget.document()->findBlockByNumber(marked_);
    if (!line.isValid()) {
        widget.setExtraSelections({});
        return;
    }
    QTextEdit::ExtraSelection mark;
    mark.cursor = QTextCursor(line);
    mark.format.setBackground(widget.palette().highlight());
    mark.format.setForeground(widget.palette().highlightedText());
    mark.format.setProperty(QTextFormat::FullWidthSelection, true);
    widget.setExtraSelections({mark});
}

void LinesBinder::FitRows(int leastHeight) {
    widget.ensurePolished();
    const int height = std::max(leastHeight, widget.fontMetrics().height());
    SetLineHeight(height);
    const int rows = widget.property("rows").toInt();
    if (rows == 0) {
        return;
    }
    const int frame = 2 * widget.frameWidth();
    widget.setFixedHeight(rows * height + frame);
    widget.setMinimumWidth(
        std::max(widget.minimumWidth(), qCeil(widget.document()->idealWidth()) + frame));
    const QString pictures = widget.property("rowPictures").toString();
    auto* canvas = pictures.isEmpty() ? nullptr : widget.window()->findChild<QWidget*>(pictures);
    if (canvas != nullptr) {
        canvas->setFixedSize(height, rows * height);
    }
}

// None above: the first line stands beside the top of a picture.
void LinesBinder::SetSideMargins() {
    constexpr double kMargin = 4.0;
    QTextFrameFormat format = widget.document()->rootFrame()->frameFormat();
    format.setMargin(0.0);
    format.setLeftMargin(kMargin);
    format.setRightMargin(kMargin);
    widget.document()->rootFrame()->setFrameFormat(format);
}

void LinesBinder::SetLineHeight(int pixels) {
    QTextBlockFormat format;
    format.setLineHeight(pixels, QTextBlockFormat::FixedHeight);
    QTextCursor all(widget.document());
    all.select(QTextCursor::Document);
    all.mergeBlockFormat(format);
}

}  // namespace horavex
