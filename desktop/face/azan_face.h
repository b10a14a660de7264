#pragma once

#include "desktop/face/azan_view.h"
#include "desktop/face/painted_face.h"

namespace horavex {

/// The face in the window of frmAzan, which stands still.
class AzanFace : public PaintedFace<AzanView> {
public:
    void SetVariable(const std::string& name, const std::string& value) override;

    /// The layout of its window: frameless, the face alone, placed by the program.
    void Fill(QWidget& window);
};

}  // namespace horavex
