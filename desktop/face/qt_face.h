#pragma once

#include <utility>

#include "desktop/face/face_view.h"
#include "desktop/face/painted_face.h"

namespace horavex {

/// The face in the window of frmMain.
class QtFace : public PaintedFace<FaceView> {
public:
    explicit QtFace(FaceView::Language language = {}) : language_(std::move(language)) {}

    void SetVariable(const std::string& name, const std::string& value) override;
    void ShowDay(const DayView& day) override;

    /// The layout of its window: frameless, the face alone.
    void Fill(QWidget& window);

private:
    FaceView::Language language_;
};

}  // namespace horavex
