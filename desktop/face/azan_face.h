#pragma once

#include <QPointer>

#include "desktop/face/azan_view.h"
#include "platform/face.h"

namespace horavex {

/// The face in the window of frmAzan. It stands still and fills its window.
class AzanFace : public Face {
public:
    void LoadMovie(int, const std::string&) override { loaded_ = true; }
    void SetVariable(const std::string& name, const std::string& value) override;
    void Play() override {}
    void Place(double, double) override {}

    /// The layout of its window: frameless, the face alone, placed by the program.
    void Fill(QWidget& window);

private:
    bool loaded_ = false;
    QPointer<AzanView> view_;  // belongs to the window
};

}  // namespace horavex
