#pragma once

#include <QWidget>

namespace horavex {

/// The steps of a window that goes through pages. The layout has a label for each, whose property
/// "stepOf" holds the object name of the page: the label shows its number and the page's own name,
/// and stands out while the page is on view.
void ShowSteps(const QWidget& window);

}  // namespace horavex
