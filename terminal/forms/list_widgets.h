#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "forms/grid.h"
#include "forms/list.h"
#include "terminal/forms/list_rows.h"
#include "terminal/forms/widget.h"

namespace horavex {

class ListWidget : public Widget {
public:
    ListWidget(ListBox& list, const LayoutNode& node, WidgetSurroundings& around)
        : Widget(&list, node, around), list_(list) {}

    int LeastWidth() const override { return std::min(WantedWidth(), 24); }
    int WantedWidth() const override;
    int HeightIn(int width) const override;
    int MostHeightIn(int) const override { return list_.ListCount(); }
    bool Widens() const override { return true; }
    bool Grows() const override;
    void Draw(Cells& cells, const Area& area, bool hasFocus) override;
    bool TakesKeys() const override { return true; }
    bool UsesPageKeys() const override { return true; }
    bool Press(const KeyPress& key) override;
    std::string Hint() const override;

private:
    ListBox& list_;
    ListRows rows_;
};

/// Captions in a row, one of which is chosen: tabs of the form's own, or those of its layout.
class TabsWidget : public Widget {
public:
    using Widget::Widget;

    int LeastWidth() const override;
    int WantedWidth() const override;
    int HeightIn(int width) const override;
    void Draw(Cells& cells, const Area& area, bool hasFocus) override;
    bool TakesKeys() const override { return true; }
    bool Press(const KeyPress& key) override;

    /// Whether there is a tab before the chosen one, -1, or behind it, 1.
    bool HasTabBeside(int step) const;

protected:
    virtual std::vector<std::string> Captions() const = 0;
    virtual int Chosen() const = 0;
    virtual void Choose(int tab) = 0;
};

class TabStripWidget : public TabsWidget {
public:
    TabStripWidget(TabStrip& strip, const LayoutNode& node, WidgetSurroundings& around)
        : TabsWidget(&strip, node, around), strip_(strip) {}

protected:
    std::vector<std::string> Captions() const override { return strip_.Items(); }
    int Chosen() const override { return strip_.ListIndex(); }
    void Choose(int tab) override { strip_.UserSelect(tab); }

private:
    TabStrip& strip_;
};

/// Pages of the layout, which the form knows nothing of.
class PagesWidget : public TabsWidget {
public:
    /// title: of a page, by its number.
    using Title = std::function<std::string(std::size_t)>;

    PagesWidget(Title title, const LayoutNode& node, WidgetSurroundings& around)
        : TabsWidget(nullptr, node, around), title_(std::move(title)) {}

    std::size_t Page() const override { return page_; }
    void TurnTo(std::size_t page) { page_ = page; }

protected:
    std::vector<std::string> Captions() const override;
    int Chosen() const override { return static_cast<int>(page_); }
    void Choose(int tab) override { page_ = static_cast<std::size_t>(tab); }

private:
    Title title_;
    std::size_t page_ = 0;
};

/// A table that is moved through; the page keys turn its page where it has some.
class GridWidget : public Widget {
public:
    GridWidget(Grid& grid, const LayoutNode& node, WidgetSurroundings& around)
        : Widget(&grid, node, around), grid_(grid) {}

    int LeastWidth() const override;
    int WantedWidth() const override;
    int HeightIn(int width) const override;
    bool Grows() const override { return true; }
    bool Widens() const override { return true; }
    void Draw(Cells& cells, const Area& area, bool hasFocus) override;
    bool TakesKeys() const override { return true; }
    bool UsesPageKeys() const override { return true; }
    bool Press(const KeyPress& key) override;

private:
    struct Shown {
        std::size_t number;
        int left;
        int width;
    };

    std::vector<int> Columns() const;
    std::vector<Shown> ColumnsIn(int width);
    bool SkipColumns(int step);
    bool Scroll(int rows);
    bool TurnPage(int step);
    void DrawRow(Cells& cells, const Area& area, const std::vector<std::string>& texts,
                 const std::vector<Shown>& columns, const Look& look) const;
    void GoToCurrentRow();

    Grid& grid_;
    std::vector<Grid::Row> shown_;
    int skipped_ = 0;  // columns behind the first one
    bool hasMoreColumns_ = false;
    bool firstIsCut_ = false;
    bool firstIsWhole_ = false;  // it yields to none
    int first_ = 0;
    int height_ = 1;  // rows of the table when it was last drawn
};

}  // namespace horavex
