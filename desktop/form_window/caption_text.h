#pragma once

#include <QString>
#include <QWidget>

#include "forms/form.h"

namespace horavex {

/// The direction that most captions on view run in: right to left for a form in Arabic. Captions
/// without a letter count for neither side, and a tie is left to right.
Qt::LayoutDirection DirectionOfCaptions(const Form& form);

/// A text for a widget. One that runs from right to left, or against the window, gets marks around
/// it that keep its own order: "06:30 AM" in an Arabic window.
QString ShownText(const QString& text, const QWidget& widget);

/// A control's caption for its widget, in the same way.
QString ShownCaption(const Control& control, const QWidget& widget);

/// A caption with the sign of its key, except in a script that runs from right to left: the line
/// that the toolkit draws under the letter would break the joins of the word.
QString WithoutBrokenKey(const QString& caption);

/// A caption as assistive tools read it: without the sign of its key.
QString SpokenText(QString caption);

}  // namespace horavex
