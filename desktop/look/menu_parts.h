#pragma once

#include <QPainter>
#include <QStyleOption>
#include <optional>

namespace horavex::look {

/// A property of a menu in colours of its own: that of its frame and of the lines in it.
inline constexpr const char* kMenuEdge = "menuEdge";

/// Around a menu and between its groups of entries; none where the desktop's own style draws them.
std::optional<QColor> EdgeOfMenu(const QPalette& palette, const QWidget* menu);

void DrawMenuFrame(const QRect& menu, const QColor& edge, QPainter& painter);

bool IsSeparator(const QStyleOption& option);
void DrawSeparator(const QRect& entry, const QColor& edge, QPainter& painter);

/// entry: the size that the toolkit has measured. Together with what the marks beside an entry take
/// of it, to which the words of large texts would otherwise be shortened.
QSize WithRoomForMarks(const QSize& entry, const QStyleOptionMenuItem& option);

/// A chosen entry has a plain check mark: the toolkit's box, of the ground of fields, would stand
/// out of a menu in other colours.
void DrawMenuMark(const QStyleOption& option, QPainter& painter);

}  // namespace horavex::look
