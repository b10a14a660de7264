#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "desktop/face/face_day.h"
#include "desktop/face/sky_ground.h"

namespace horavex {

/// The face for a wall: it fills a screen and is read from across a hall. Type is a part of the
/// screen's height. It shows no pointer; Escape and F11 ask to leave it.
class PosterView : public QWidget {
public:
    explicit PosterView(std::function<void()> leave);

    void ShowDay(const FaceDay& day);

    /// Weekday, Gregorian and Hijri date in words.
    void ShowDates(const QString& day, const QString& date, const QString& hijri);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QRectF Line(double top, double height) const;
    QRect CountdownArea() const;
    QRectF Cell(std::size_t prayer) const;
    void PlanGround();
    void PaintDates(QPainter& painter) const;
    void PaintClock(QPainter& painter) const;
    void PaintCountdown(QPainter& painter) const;
    void PaintPrayer(QPainter& painter, std::size_t prayer) const;
    void Write(QPainter& painter, const QRectF& area, double part, const QColor& colour,
               const QString& text, bool bold = false) const;

    std::function<void()> leave_;
    std::optional<SkyGround> ground_;
    std::optional<FaceDay> day_;
    QString weekday_;
    QString date_;
    QString hijri_;
};

}  // namespace horavex
