#pragma once

#include "desktop/form_window/binder_of.h"
#include "desktop/form_window/canvas.h"
#include "forms/picture.h"

namespace horavex {

class PictureBinder : public BinderOf<Picture, Canvas> {
public:
    using BinderOf::BinderOf;

protected:
    void Show() override {
        widget.Show({control.ScaleWidth(), control.ScaleHeight()}, control.PictureName(),
                    control.drawing);
    }
    void Clicked() override {
        Hand([this] { control.UserClick(); });
    }
};

}  // namespace horavex
