#pragma once

#include <QRectF>
#include <QString>
#include <QWidget>
#include <optional>
#include <vector>

namespace horavex {

struct PrayerEntry {
    QString name;
    QString time;

    bool operator==(const PrayerEntry&) const = default;
};

/// The six times, one a row, the row of the next prayer marked. Names stand at the side where
/// their script begins.
class TimesView : public QWidget {
public:
    using QWidget::QWidget;

    /// next: the row to mark.
    void ShowTimes(const std::vector<PrayerEntry>& rows, std::size_t next);

    const std::vector<PrayerEntry>& Rows() const { return rows_; }
    /// The marked row; none before the first day.
    std::optional<std::size_t> Next() const { return next_; }
    QRectF AreaOf(std::size_t row) const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintRow(QPainter& painter, std::size_t row) const;

    std::vector<PrayerEntry> rows_;
    std::optional<std::size_t> next_;
};

}  // namespace horavex
