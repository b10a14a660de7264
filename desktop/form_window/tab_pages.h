#pragma once

#include <QWidget>

namespace horavex {

/// Pages behind tabs are the layout's alone: the form has all of their controls at once. A page's
/// property "titledBy" names the widgets whose own names are the caption of its tab, as "namedBy"
/// does for other widgets.
void TitlePages(const QWidget& window);

/// True for what is on view as soon as the pages that it lies on are in front.
bool IsSeenOnItsPage(const QWidget& widget);

/// Brings to the front the pages that the widget lies on, and scrolls them to it.
void BringIntoView(QWidget& widget);

/// What the Tab key reaches next, or before, in the window: whatever takes the focus by it and is
/// seen as soon as its page is. nullptr for none.
QWidget* NextByTab(QWidget& window, bool forward);

}  // namespace horavex
