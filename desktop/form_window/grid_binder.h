#pragma once

#include <QTableWidget>
#include <vector>

#include "desktop/form_window/binder_of.h"
#include "forms/grid.h"

namespace horavex {

/// The size at which a table shows all its rows and columns, in pixels; beside a bar that scrolls
/// it down, which it has where the screen is lower.
QSize WholeGrid(const QTableWidget& table);

/// A table of texts, at its present row when it comes or turns to another page. The page keys turn
/// its page, and so does the wheel as long as all rows are on view.
class GridBinder : public BinderOf<Grid, QTableWidget> {
public:
    GridBinder(Control& bound, QWidget& boundWidget, RefreshLater refreshLater);

protected:
    void Show() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Qt::Alignment SideOf(int column) const;
    void ShowHeads();
    void ShowRow(int row);
    void GoToCurrentRow();
    int ShareBeside(const std::vector<int>& needs) const;
    void ShareWidth();
    bool Scrolls() const;
    void Wheel(int delta);
    void Turn(int step);

    std::vector<Grid::Row> shown_;
    int wheel_ = 0;  // eighths of a degree that no page has been turned for
};

}  // namespace horavex
