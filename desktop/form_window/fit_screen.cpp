#include "desktop/form_window/fit_screen.h"

#include <QAbstractTextDocumentLayout>
#include <QLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QTextDocument>
#include <QTextEdit>
#include <QWindow>
#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>
#include <vector>

#include "desktop/form_window/grid_binder.h"
#include "desktop/look/measures.h"

namespace horavex {

namespace {

constexpr QMargins kBroadFrame(4, 40, 4, 4);

QSize WholeContent(const QScrollArea& area) {
    const QWidget& content = *area.widget();
    const QSize least = content.minimumSizeHint();
    return {least.width() + area.verticalScrollBar()->sizeHint().width(),
            std::max(least.height(), content.heightForWidth(least.width()))};
}

/// Lines of at least forty letters, beside the bar that a lower text would keep.
QSize WholeText(const QTextEdit& text, const QWidget& window) {
    constexpr int kLetters = 40;
    const int frame = 2 * text.frameWidth();
    const int bar = text.verticalScrollBar()->sizeHint().width();
    const int offered = window.width() - 2 * look::kWindowMargin;
    const int width = std::max(kLetters * text.fontMetrics().averageCharWidth(), offered);
    const std::unique_ptr<QTextDocument> lines(text.document()->clone());
    lines->documentLayout()->setPaintDevice(text.viewport());
    lines->setTextWidth(width - frame - bar);
    return {width, static_cast<int>(std::ceil(lines->size().height())) + frame};
}

/// What scrolls where the window is smaller than all it has, with its whole size.
std::vector<std::pair<QWidget*, QSize>> ScrolledParts(const QWidget& window) {
    std::vector<std::pair<QWidget*, QSize>> parts;
    for (QScrollArea* area : window.findChildren<QScrollArea*>()) {
        parts.emplace_back(area, WholeContent(*area));
    }
    for (QTableWidget* table : window.findChildren<QTableWidget*>()) {
        parts.emplace_back(table, WholeGrid(*table));
    }
    for (QTextEdit* text : window.findChildren<QTextEdit*>()) {
        if (text->property("showsWhole").toBool()) {
            parts.emplace_back(text, WholeText(*text, window));
        }
    }
    return parts;
}

/// A change inside a part reaches the layout around it by events, which none that is not on view
/// yet takes.
void MakeInnerLayoutsTell(const QWidget& window) {
    const QList<QWidget*> widgets = window.findChildren<QWidget*>();
    std::for_each(widgets.rbegin(), widgets.rend(), [](QWidget* widget) {
        if (widget->layout() != nullptr) {
            widget->layout()->activate();
        }
        widget->updateGeometry();  // pages behind tabs have no layout around them
    });
}

/// Texts that wrap may want more height at a width than at their narrowest.
QSize LeastSize(const QWidget& window) {
    const QSize least = window.minimumSizeHint();
    const QLayout* layout = window.layout();
    if (layout == nullptr || !layout->hasHeightForWidth()) {
        return least;
    }
    const int width = std::max(least.width(), window.width());
    return {least.width(), std::max(least.height(), layout->totalMinimumHeightForWidth(width))};
}

}  // namespace

QSize WholeSize(QWidget& window) {
    MakeInnerLayoutsTell(window);
    std::vector<std::pair<QWidget*, QSize>> formerLeast;
    for (const auto& [part, whole] : ScrolledParts(window)) {
        formerLeast.emplace_back(part, part->minimumSize());
        part->setMinimumSize(whole.expandedTo(part->minimumSize()));
    }
    MakeInnerLayoutsTell(window);
    const QSize size = LeastSize(window);
    for (const auto& [part, least] : formerLeast) {
        part->setMinimumSize(least);
    }
    MakeInnerLayoutsTell(window);
    return size;
}

QMargins FrameAround(const QWidget& window) {
    if (window.windowFlags().testFlag(Qt::FramelessWindowHint)) {
        return {};
    }
    const QMargins frame = window.windowHandle()->frameMargins();
    return frame.isNull() ? kBroadFrame : frame;
}

QRect PutInto(const QRect& area, const QRect& window, const QMargins& frame) {
    const QRect free = area.marginsRemoved(frame);
    const QSize size = window.size().boundedTo(free.size());
    const QSize room = free.size() - size;
    return {QPoint(std::clamp(window.x(), area.x(), area.x() + room.width()),
                   std::clamp(window.y(), area.y(), area.y() + room.height())),
            size};
}

}  // namespace horavex
