#pragma once

#include <map>
#include <vector>

#include "terminal/forms/layout_tree.h"
#include "terminal/screen/cells.h"

namespace horavex {

/// What an arrangement has to know of a leaf of a layout. Widths in columns, heights in rows.
class Arranged {
public:
    virtual ~Arranged() = default;

    virtual bool IsShown() const = 0;
    virtual int LeastWidth() const = 0;
    virtual int WantedWidth() const = 0;
    virtual int HeightIn(int width) const = 0;

    /// Takes the columns, or the rows, that others leave.
    virtual bool Widens() const { return false; }
    virtual bool Grows() const { return false; }

    /// Rows beyond which it does not grow.
    virtual int MostHeightIn(int /*width*/) const { return 1000; }

    /// Says something of what stands before it in its row, the value of a bar for one, and is not
    /// parted from it.
    virtual bool TellsOfPrevious() const { return false; }

    /// Of a leaf with pages inside: which is on view.
    virtual std::size_t Page() const { return 0; }
};

/// By the node of the layout. A widget of a layout that is no key here is seen through: only what
/// lies inside it counts.
using ArrangedNodes = std::map<const LayoutNode*, Arranged*>;

/// Puts the leaves of a layout into rows and columns. Parts that do not go beside each other in
/// the width that there is go below each other, so that no width is too small.
class Arrangement {
public:
    explicit Arrangement(const ArrangedNodes& nodes) : nodes_(nodes) {}

    /// Columns that the whole wants.
    int WantedWidth(const LayoutNode& root) const { return WidthsOf(root).wanted; }

    /// Arranges anew in the given columns; what grows shares the rows that are left of the given
    /// height. Returns the rows that it takes, which may be more.
    int Arrange(const LayoutNode& root, int width, int height, bool fromRight);

    /// Where a node lies; nothing for one that is not on view.
    const std::map<const LayoutNode*, Area>& Areas() const { return areas_; }

private:
    struct Widths {
        int least = 0;
        int wanted = 0;
        bool widens = false;
    };

    using Nodes = std::vector<const LayoutNode*>;

    const Arranged* Of(const LayoutNode& node) const;
    bool IsShown(const LayoutNode& node) const;
    Nodes ShownChildren(const LayoutNode& node) const;
    Widths WidthsOf(const LayoutNode& node) const;
    Widths WidthsBeside(const Nodes& nodes) const;
    std::vector<Widths> GridColumns(const LayoutNode& grid) const;
    std::map<int, Nodes> LinesOf(const LayoutNode& grid) const;

    // Each places a node and all inside it, and returns the rows that it takes.
    int Place(const LayoutNode& node, int row, int column, int width);
    int PlaceWidget(const LayoutNode& node, int row, int column, int width);
    int PlacePages(const LayoutNode& node, int row, int column, int width);
    int PlaceBelow(const Nodes& nodes, int row, int column, int width);
    int PlaceBeside(const Nodes& nodes, int row, int column, int width);
    int PlaceGrid(const LayoutNode& grid, int row, int column, int width);
    int PlaceCells(const LayoutNode& grid, const std::vector<int>& widths, int row, int column);
    int PlaceGridBelow(const LayoutNode& grid, int row, int column, int width);
    int WidthInFlow(const LayoutNode& node) const;
    bool AreOne(const LayoutNode& before, const LayoutNode& node, int width) const;
    std::vector<Nodes> UnitsOf(const Nodes& nodes, int width) const;
    int PlaceLine(const Nodes& line, int row, int column, int width);
    int PlaceFlowing(const Nodes& nodes, int row, int column, int width);
    int HeightOf(const LayoutNode& page, int width) const;

    const ArrangedNodes& nodes_;
    std::map<const LayoutNode*, Area> areas_;
    int extra_ = 0;  // rows that each leaf that grows gets beyond its own
};

}  // namespace horavex
