#pragma once

#include <QString>
#include <QWidget>

namespace horavex {

/// Tells assistive tools the name of a widget, which others can take over.
void SetOwnName(QWidget& widget, const QString& name);

/// Tells assistive tools what the widgets are whose caption, if they have one, does not say it. The
/// layout says which widgets explain another one: its property "namedBy" holds the object name of
/// the one whose own name it takes over, "describedBy" of the one whose name becomes its
/// description. Several, itself among them, stand with a blank between: "lblVolume lblPrayer_3"
/// makes "Volume, Asr".
void NameWidgets(const QWidget& window);

/// The own names of the widgets that a property of the widget lists so.
QString NamesOfOthers(const QWidget& window, const QWidget& widget, const char* property);

}  // namespace horavex
