#pragma once

#include <QMenu>
#include <QPalette>
#include <QPoint>

#include "forms/menu_item.h"

namespace horavex {

/// Adds the visible entries inside a menu, with their submenus. Entries know their menu item by
/// ItemOf.
void FillMenu(QMenu& menu, const MenuItem& source);

/// Whether a menu already has the visible entries of the source, as they are now.
bool ShowsEntriesOf(const QMenu& menu, const MenuItem& source);

/// The menu item behind an entry; nullptr for no entry.
MenuItem* ItemOf(const QAction* action);

/// Where the user went on to from a menu: -1 to the one before it in the direction of reading, 1 to
/// the one behind it, 0 nowhere. A property of the window that it was opened in.
inline constexpr const char* kMenuStep = "menuStep";

/// How a menu is shown.
struct MenuLook {
    QPalette colours;    // by default the desktop's
    QColor edge;         // around it and between its groups; invalid for that of the windows
    bool steps = false;  // the arrow keys leave it sideways for a neighbour
};

/// Whether its entries run from right to left.
bool RunsFromRight(const MenuItem& menu);

/// Opens a menu at a place of the screen, in pixels, and clicks what the user chooses. The place is
/// that of the upper corner where the entries begin: the right one of those that run from there.
/// Returns when the menu is closed and the click's work is done; events are delivered meanwhile.
void RunMenu(const MenuItem& menu, QWidget* parent, QPoint place, const MenuLook& look = {});

}  // namespace horavex
