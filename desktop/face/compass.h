#pragma once

#include <QWidget>
#include <optional>

namespace horavex {

/// Degrees clockwise from north, below 360, out of a number's text with either decimal mark.
/// Nothing for a text that is no number.
std::optional<double> ReadBearing(const QString& text);

/// A compass card with north at its top and a needle to the qibla, the bearing in whole degrees
/// below. Without a bearing there is no needle.
class Compass : public QWidget {
public:
    using QWidget::QWidget;

    void ShowBearing(std::optional<double> degrees);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString Words() const;

    std::optional<double> degrees_;
};

}  // namespace horavex
