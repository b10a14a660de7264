#pragma once

#include <QString>

namespace horavex {

// Patterns of the toolkit for dates and times, made from a locale's own: "h:mm AP t", "HH 'h' mm".
// Letters between apostrophes stand for themselves. Nothing of a zone is left.

/// A locale's short pattern as hours of two digits and minutes: "hh:mm AP".
QString MediumTimePattern(const QString& shortPattern);

/// A locale's long pattern with its seconds: "h:mm:ss AP".
QString LongTimePattern(const QString& longPattern);

/// A locale's short pattern with the year in full: "M/d/yyyy".
QString ShortDatePattern(const QString& shortPattern);

}  // namespace horavex
