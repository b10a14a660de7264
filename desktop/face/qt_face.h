#pragma once

#include <QPointer>

#include "desktop/face/face_view.h"
#include "platform/face.h"

namespace horavex {

/// The face in the window of frmMain. It has no margin that would lie outside that window, so
/// that it fills it wherever it is placed, and its motion is that of its variables.
class QtFace : public Face {
public:
    void LoadMovie(int layer, const std::string& url) override;
    void SetVariable(const std::string& name, const std::string& value) override;
    void Play() override {}
    void Place(double, double) override {}

    /// The layout of its window: frameless, the face alone.
    void Fill(QWidget& window);

private:
    bool loaded_ = false;
    QPointer<FaceView> view_;  // belongs to the window
};

}  // namespace horavex
