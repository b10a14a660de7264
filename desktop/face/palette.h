#pragma once

#include <QColor>

namespace horavex {

// The face's colours: gold and cream on a sky, whose colours by night begin here.

inline const QColor kSkyTop(0x17, 0x30, 0x50);
inline const QColor kSkyBottom(0x0b, 0x19, 0x2e);
inline const QColor kGold(0xe6, 0xc6, 0x78);
inline const QColor kCream(0xf4, 0xee, 0xdf);
inline const QColor kMuted(0xcc, 0xd8, 0xe6);
inline const QColor kSunColour(0xff, 0xdf, 0x8c);
inline const QColor kEdge(0xe6, 0xc6, 0x78, 0x70);  // lines around things
inline const QColor kCard(0xff, 0xff, 0xff, 0x12);  // a raised area
inline const QColor kGlow(0xe6, 0xc6, 0x78, 0x2a);  // what is hovered or comes next
inline const QColor kPressed(0xe6, 0xc6, 0x78, 0x55);

// Of its menus, opaque.
inline const QColor kMenuChosen(0x4c, 0x57, 0x5a);
inline const QColor kMenuOff(0x93, 0xa3, 0xb8);
inline const QColor kMenuLine(0x7f, 0x93, 0xad);  // around them and between their groups

}  // namespace horavex
