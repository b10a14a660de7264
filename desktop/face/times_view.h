#pragma once

#include <QWidget>
#include <vector>

#include "desktop/face/prayer_line.h"

namespace horavex {

/// The six times, one a row, the row of the next prayer marked. Names stand at the side where
/// their script begins.
class TimesView : public QWidget {
public:
    using QWidget::QWidget;

    /// text: as ReadPrayerLine reads it; another one is shown as it stands.
    void ShowTimes(const QString& text);

    /// The sentence that names the next prayer.
    void ShowNext(const QString& sentence);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintRow(QPainter& painter, std::size_t row) const;
    QRectF AreaOf(std::size_t row) const;

    QString text_;
    QString sentence_;
    std::vector<PrayerEntry> rows_;
    std::optional<std::size_t> next_;
};

}  // namespace horavex
