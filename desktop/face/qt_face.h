#pragma once

#include <QPointer>
#include <memory>
#include <utility>

#include "desktop/face/face_view.h"
#include "desktop/face/painted_face.h"
#include "desktop/face/poster_view.h"
#include "desktop/face/strip_view.h"
#include "desktop/ports/screen_awake.h"

namespace horavex {

/// The face in the window of frmMain, whole or as one line; where it fills the screen, it does so
/// in a window of its own in front of that.
class QtFace : public PaintedFace<FaceView> {
public:
    explicit QtFace(FaceView::Language language = {}) : language_(std::move(language)) {}

    void SetVariable(const std::string& name, const std::string& value) override;
    void ShowDay(const DayView& day) override;
    void TakeShape(const FaceShape& shape) override;

    /// The layout of its window: frameless, the face alone.
    void Fill(QWidget& window);

private:
    void TakeStrip(FaceView& view, bool small);
    void TakePoster(FaceView& view, bool fillsScreen);
    void ShowInShapes(FaceView& view);

    FaceView::Language language_;
    FaceDay day_;
    QPointer<StripView> strip_;  // belongs to the window
    QPointer<PosterView> poster_;
    std::unique_ptr<ScreenAwake> awake_;  // while the poster is up
};

}  // namespace horavex
