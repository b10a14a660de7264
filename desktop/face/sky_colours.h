#pragma once

#include <QColor>

namespace horavex {

/// The face's ground at one height of the sun. Every text of the face keeps a contrast of at least
/// 4.5:1 on all of it, which keeps the day deep.
struct SkyColours {
    QColor top;
    QColor bottom;
    QColor card;   // laid over the sky where things lie
    double stars;  // how much of them is seen, 0 to 1
};

/// altitude: of the sun, degrees. From 18 degrees below the horizon down it is night, from 12 above
/// it up full day; the colours between pass into one another.
SkyColours SkyColoursAt(double altitude);

/// In place of it where a desktop wants contrast: black at every hour.
SkyColours PlainSky();

/// The ground of what stands before no sky of its hour, such as the athan: of the night, or plain.
SkyColours NightSky();

/// Lines around things, of 3:1 and more where a desktop wants contrast.
QColor EdgeOfFace();

}  // namespace horavex
