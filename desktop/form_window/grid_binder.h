#pragma once

#include <QTableWidget>

#include "desktop/form_window/binder_of.h"
#include "forms/grid.h"

namespace horavex {

/// A table of texts. The wheel and the page keys turn its page instead of scrolling.
class GridBinder : public BinderOf<Grid, QTableWidget> {
public:
    GridBinder(Control& bound, QWidget& boundWidget, RefreshLater refreshLater);

protected:
    void Show() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ShowHeads();
    void ShowRow(int row);
    void ShareWidth();
    int WidthOf(int column) const;
    void Wheel(int delta);
    void Turn(int step);

    int wheel_ = 0;  // eighths of a degree that no page has been turned for
};

}  // namespace horavex
