#pragma once

#include <QDBusConnection>
#include <QPointer>
#include <functional>
#include <memory>
#include <utility>

#include "desktop/face/face_view.h"
#include "desktop/face/paint_when_seen.h"
#include "desktop/face/painted_face.h"
#include "desktop/face/poster_view.h"
#include "desktop/face/strip_view.h"
#include "desktop/ports/screen_awake.h"

namespace horavex {

/// The face in the window of frmMain, whole or as one line; where it fills the screen, it does so
/// in a window of its own in front of that.
class QtFace : public PaintedFace<FaceView> {
public:
    /// A bus of the session, which is asked for when it is needed.
    using Bus = std::function<QDBusConnection()>;

    explicit QtFace(FaceView::Language language = {}, Bus bus = QDBusConnection::sessionBus)
        : language_(std::move(language)), bus_(std::move(bus)) {}
    ~QtFace() override;
    QtFace(const QtFace&) = delete;
    QtFace& operator=(const QtFace&) = delete;

    void SetVariable(const std::string& name, const std::string& value) override;
    void ShowDay(const DayView& day) override;
    void TakeShape(const FaceShape& shape) override;

    /// The layout of its window: frameless, the face alone.
    void Fill(QWidget& window);

private:
    void NameStrip();
    void TakeStrip(FaceView& view, bool small);
    void TakePoster(FaceView& view, bool fillsScreen);
    void ShowInShapes(FaceView& view);

    FaceView::Language language_;
    Bus bus_;
    FaceDay day_;
    QPointer<StripView> strip_;         // belongs to the window, as the next one
    QPointer<PaintWhenSeen> painting_;  // of the window
    QPointer<PosterView> poster_;
    std::unique_ptr<ScreenAwake> awake_;  // while the poster is up
};

}  // namespace horavex
