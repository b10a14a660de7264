#pragma once

#include <QRectF>

#include "desktop/face/text_line.h"

namespace horavex {

/// The time that remains, in type that is read across a room, behind a few words in small type.
/// Until it is told as a value it shows its text, which assistive tools read in either case.
class CountdownLine : public TextLine {
public:
    using TextLine::TextLine;

    /// Paints anew only for other words or another second, and for that the digits alone.
    void ShowCountdown(const QString& words, int seconds);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double WidthOf(const QString& digits) const;

    QString words_;
    QString digits_;
    QRectF painted_;  // where the digits were last
};

/// Hours, minutes and seconds, "2:05:09", in the digits that users chose.
QString CountdownDigits(int seconds);

}  // namespace horavex
