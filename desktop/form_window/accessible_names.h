#pragma once

#include <QWidget>

namespace horavex {

/// Tells assistive tools what the widgets without a caption are. The layout says which widgets
/// explain another one: its property "namedBy" holds the object name of the one whose accessible
/// name it takes over, "describedBy" of the one that becomes its description.
void NameWidgets(const QWidget& window);

}  // namespace horavex
