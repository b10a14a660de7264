#include "desktop/ports/topic_lines.h"

#include <QPainter>
#include <QTextLayout>
#include <cmath>

namespace horavex {

namespace {

// Pixels.
constexpr int kBeside = 4;    // the text, in the marked row
constexpr int kFurther = 12;  // the lines behind the first

/// Breaks a text into lines of a width. Returns their height.
double BreakLines(QTextLayout& layout, double width, Qt::LayoutDirection direction) {
    QTextOption option(direction == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft);
    option.setTextDirection(direction);
    layout.setTextOption(option);
    layout.beginLayout();
    double height = 0.0;
    double further = 0.0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width - further);
        line.setPosition({direction == Qt::RightToLeft ? 0.0 : further, height});
        height += line.height();
        further = kFurther;
    }
    layout.endLayout();
    return height;
}

}  // namespace

void TopicLines::paint(QPainter* painter, const QStyleOptionViewItem& option,
                       const QModelIndex& index) const {
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    QTextLayout layout(row.text, row.font, painter->device());
    row.text.clear();
    list_.style()->drawControl(QStyle::CE_ItemViewItem, &row, painter, &list_);
    BreakLines(layout, row.rect.width() - 2 * kBeside, row.direction);
    const bool isMarked = row.state.testFlag(QStyle::State_Selected);
    painter->setPen(row.palette.color(isMarked ? QPalette::HighlightedText : QPalette::Text));
    layout.draw(painter, row.rect.topLeft() + QPointF(kBeside, 0.0));
}

QSize TopicLines::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const int width = list_.viewport()->width() - 2 * list_.spacing();
    QTextLayout layout(row.text, row.font, &list_);
    const double height = BreakLines(layout, width - 2 * kBeside, row.direction);
    return {width, static_cast<int>(std::ceil(height))};
}

}  // namespace horavex
