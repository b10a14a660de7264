#include "desktop/look/menu_parts.h"

#include <QVariant>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include "desktop/look/measures.h"
#include "desktop/look/roles.h"

namespace horavex::look {

namespace {

// The column of marks in a menu: as the toolkit measures it, pixels, and as it draws it, of the
// height of an entry.
constexpr int kMarksMeasured = 20;
constexpr double kMarksDrawn = 0.79;

}  // namespace

std::optional<QColor> EdgeOfMenu(const QPalette& palette, const QWidget* menu) {
    const QVariant own = menu == nullptr ? QVariant() : menu->property(kMenuEdge);
    if (own.isValid()) {
        return own.value<QColor>();
    }
    return HasOurColours(palette) ? std::optional(ColourOf(ThemeOf(palette), Role::kEdge))
                                  : std::nullopt;
}

void DrawMenuFrame(const QRect& menu, const QColor& edge, QPainter& painter) {
    painter.save();
    painter.setPen(edge);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(menu.adjusted(0, 0, -1, -1));
    painter.restore();
}

bool IsSeparator(const QStyleOption& option) {
    const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(&option);
    return entry != nullptr && entry->menuItemType == QStyleOptionMenuItem::Separator;
}

void DrawSeparator(const QRect& entry, const QColor& edge, QPainter& painter) {
    painter.fillRect(entry.left() + kSpacing, entry.center().y(), entry.width() - 2 * kSpacing, 1,
                     edge);
}

QSize WithRoomForMarks(const QSize& entry, const QStyleOptionMenuItem& option) {
    const int measured = std::max(kMarksMeasured, option.maxIconWidth);
    const int drawn = static_cast<int>(std::ceil(kMarksDrawn * entry.height()));
    return entry + QSize(std::max(0, drawn - measured), 0);
}

void DrawMenuMark(const QStyleOption& option, QPainter& painter) {
    if (!option.state.testFlag(QStyle::State_On)) {
        return;
    }
    const QRectF box(option.rect);
    const auto at = [&](double x, double y) {
        return QPointF(box.x() + x * box.width(), box.y() + y * box.height());
    };
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isPointedAt = option.state.testFlag(QStyle::State_Selected);
    const QColor words =
        option.palette.color(isPointedAt ? QPalette::HighlightedText : QPalette::Text);
    painter.setPen(QPen(words, 2.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{at(0.2, 0.55), at(0.4, 0.75), at(0.8, 0.3)});
    painter.restore();
}

}  // namespace horavex::look
