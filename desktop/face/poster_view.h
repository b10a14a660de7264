#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "desktop/face/face_day.h"
#include "desktop/face/poster_layout.h"
#include "desktop/face/sky_ground.h"
#include "desktop/form_window/usable_window.h"

namespace horavex {

/// The face for a wall: it fills a screen and is read from across a hall. It shows no pointer;
/// Escape, F11, a double click or tap, and the window manager's own way to close it ask to leave.
class PosterView : public QWidget {
public:
    explicit PosterView(std::function<void()> leave);

    /// Comes up over a screen, and over what is open there.
    void Fill(QScreen& screen);

    void ShowDay(const FaceDay& day);
    void ShowDates(const PosterDates& dates);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void PlanGround();
    void MarkNext(QPainter& painter) const;

    std::function<void()> leave_;
    UsableWindow usable_{*this};
    PosterLayout layout_;
    std::optional<SkyGround> ground_;
    std::optional<FaceDay> day_;
    PosterDates dates_;
};

}  // namespace horavex
