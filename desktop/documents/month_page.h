#pragma once

#include <QPainter>
#include <QRectF>

#include "timetables/document_tools.h"

namespace horavex {

/// Draws one month of the year into an area of a printed page, in the device's own pixels: the
/// head with place, method and qibla, a row a day with its Hijri date, Fridays shaded, today
/// framed, and the footnotes on daylight saving. From right to left where the language runs so.
/// month: 1 to 12; dotsPerInch: of the painter's device.
void DrawMonthPage(QPainter& painter, const QRectF& area, double dotsPerInch,
                   const PrintedYear& year, int month);

}  // namespace horavex
