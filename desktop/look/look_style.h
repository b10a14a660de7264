#pragma once

#include <QProxyStyle>
#include <QStyleOption>

namespace horavex::look {

/// The toolkit's style with the measures of these windows: a grid of four pixels, buttons told by
/// their words, and edges that are seen on dark ground, too.
class LookStyle : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;

    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette,
                      bool enabled, const QString& text, QPalette::ColorRole role) const override;
    QIcon standardIcon(StandardPixmap picture, const QStyleOption* option,
                       const QWidget* widget) const override;
    QPixmap standardPixmap(StandardPixmap picture, const QStyleOption* option,
                           const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;

private:
    /// The room for the text of a choice, in pixels.
    int ChoiceRoom(const QStyleOptionComboBox& box, const QWidget* widget) const;
    void DrawItem(const QStyleOptionViewItem& item, QPainter& painter, const QWidget* widget) const;
    void DrawSlider(const QStyleOptionSlider& option, QPainter& painter,
                    const QWidget* widget) const;
    void DrawTicks(const QStyleOptionSlider& option, QPainter& painter,
                   const QWidget* widget) const;
};

}  // namespace horavex::look
