#include "terminal/forms/arrangement.h"

#include <algorithm>
#include <numeric>

#include "terminal/forms/shared_columns.h"

namespace horavex {

namespace {

using Kind = LayoutNode::Kind;

constexpr int kFrameSide = 2;   // of a frame, on each side
constexpr int kFrameEdges = 2;  // rows of its two edges

bool IsSpaceAcross(const LayoutNode& node) {
    return node.kind == Kind::kSpace && node.Property("orientation") == "Qt::Horizontal";
}

}  // namespace

const Arranged* Arrangement::Of(const LayoutNode& node) const {
    const auto found = nodes_.find(&node);
    return found == nodes_.end() ? nullptr : found->second;
}

bool Arrangement::IsShown(const LayoutNode& node) const {
    const Arranged* const leaf = Of(node);
    if (leaf != nullptr) {
        return leaf->IsShown();
    }
    return std::any_of(node.children.begin(), node.children.end(),
                       [this](const LayoutNode& child) { return IsShown(child); });
}

Arrangement::Nodes Arrangement::ShownChildren(const LayoutNode& node) const {
    Nodes shown;
    for (const LayoutNode& child : node.children) {
        if (IsSpaceAcross(child) || IsShown(child)) {
            shown.push_back(&child);
        }
    }
    return shown;
}

Arrangement::Widths Arrangement::WidthsBeside(const Nodes& nodes) const {
    Widths widths;
    std::size_t count = 0;
    for (const LayoutNode* node : nodes) {
        const Widths one = WidthsOf(*node);
        widths.least = std::max(widths.least, one.least);  // below each other, at the worst
        widths.wanted += one.wanted;
        widths.widens = widths.widens || one.widens;
        count += node->kind == Kind::kSpace ? 0 : 1;
    }
    widths.wanted += GapsBetween(count);
    return widths;
}

Arrangement::Widths Arrangement::WidthsOf(const LayoutNode& node) const {
    if (!IsShown(node)) {
        return {};
    }
    if (node.kind == Kind::kColumns) {
        return WidthsBeside(ShownChildren(node));
    }
    Widths inside;
    if (node.kind == Kind::kGrid) {
        std::size_t used = 0;
        for (const Widths& column : GridColumns(node)) {
            inside.least += std::max(column.least, 0);
            inside.wanted += column.wanted;
            inside.widens = inside.widens || column.widens;
            used += column.wanted > 0 ? 1 : 0;
        }
        inside.least += GapsBetween(used);
        inside.wanted += GapsBetween(used);
    } else {
        for (const LayoutNode& child : node.children) {
            const Widths one = WidthsOf(child);
            inside = {std::max(inside.least, one.least), std::max(inside.wanted, one.wanted),
                      inside.widens || one.widens};
        }
    }
    const Arranged* const leaf = Of(node);
    if (leaf == nullptr) {
        return inside;
    }
    const int sides = node.children.empty() || node.kind == Kind::kPages ? 0 : 2 * kFrameSide;
    return {std::max(leaf->LeastWidth(), inside.least) + sides,
            std::max(leaf->WantedWidth(), inside.wanted) + sides, leaf->Widens() || inside.widens};
}

int Arrangement::Arrange(const LayoutNode& root, int width, int height, bool fromRight) {
    extra_ = 0;
    int taken = 0;
    const auto place = [&] {
        areas_.clear();
        taken = Place(root, 0, 0, width);
    };
    place();
    const int free = height - taken;
    const bool grows = std::any_of(nodes_.begin(), nodes_.end(), [](const auto& entry) {
        return entry.second->IsShown() && entry.second->Grows();
    });
    for (extra_ = free; grows && extra_ > 0; --extra_) {
        place();
        if (taken <= height) {
            break;
        }
    }
    if (extra_ <= 0 || !grows) {
        extra_ = 0;
        place();
    }
    if (fromRight) {
        for (auto& [node, area] : areas_) {
            area.column = width - area.column - area.width;
        }
    }
    return taken;
}

int Arrangement::Place(const LayoutNode& node, int row, int column, int width) {
    if (!IsShown(node)) {
        return 0;
    }
    switch (node.kind) {
        case Kind::kColumns:
            return PlaceBeside(ShownChildren(node), row, column, width);
        case Kind::kGrid:
            return PlaceGrid(node, row, column, width);
        case Kind::kPages:
            return PlacePages(node, row, column, width);
        case Kind::kRows:
            return PlaceBelow(ShownChildren(node), row, column, width);
        case Kind::kWidget:
            return PlaceWidget(node, row, column, width);
        case Kind::kSpace:
            break;
    }
    return 0;
}

int Arrangement::PlaceWidget(const LayoutNode& node, int row, int column, int width) {
    const Arranged* const leaf = Of(node);
    if (leaf == nullptr) {
        return PlaceBelow(ShownChildren(node), row, column, width);
    }
    int height = 0;
    if (node.children.empty()) {
        height = leaf->HeightIn(width);
        if (leaf->Grows()) {
            height = std::max(height, std::min(height + extra_, leaf->MostHeightIn(width)));
        }
    } else {
        height = kFrameEdges + PlaceBelow(ShownChildren(node), row + 1, column + kFrameSide,
                                          width - 2 * kFrameSide);
    }
    areas_[&node] = {row, column, height, width};
    return height;
}

/// As high as the highest page, so that the window stays as it is when a page is turned.
int Arrangement::PlacePages(const LayoutNode& node, int row, int column, int width) {
    const Arranged* const tabs = Of(node);
    const int head = tabs->HeightIn(width);
    areas_[&node] = {row, column, head, width};
    int highest = 0;
    for (const LayoutNode& page : node.children) {
        highest = std::max(highest, HeightOf(page, width));
    }
    Place(node.children.at(tabs->Page()), row + head, column, width);
    return head + highest;
}

int Arrangement::HeightOf(const LayoutNode& page, int width) const {
    Arrangement scratch(nodes_);
    scratch.extra_ = extra_;
    return scratch.Place(page, 0, 0, width);
}

int Arrangement::PlaceBelow(const Nodes& nodes, int row, int column, int width) {
    int height = 0;
    for (const LayoutNode* node : nodes) {
        height += Place(*node, row + height, column, width);
    }
    return height;
}

int Arrangement::PlaceBeside(const Nodes& nodes, int row, int column, int width) {
    std::vector<int> least;
    std::vector<int> wanted;
    std::vector<bool> widens;
    std::vector<bool> spaces;
    std::size_t count = 0;
    for (const LayoutNode* node : nodes) {
        const Widths one = WidthsOf(*node);
        least.push_back(one.least);
        wanted.push_back(one.wanted);
        widens.push_back(one.widens);
        spaces.push_back(node->kind == Kind::kSpace);
        count += node->kind == Kind::kSpace ? 0 : 1;
    }
    const int room = width - GapsBetween(count);
    if (std::accumulate(least.begin(), least.end(), 0) > room) {
        return PlaceFlowing(nodes, row, column, width);
    }
    const bool anyWidens = std::find(widens.begin(), widens.end(), true) != widens.end();
    const std::vector<int> shares = SharedColumns(least, wanted, anyWidens ? widens : spaces, room);
    int height = 0;
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        height = std::max(height, Place(*nodes[i], row, column, shares[i]));
        column += shares[i] + (nodes[i]->kind == Kind::kSpace ? 0 : kColumnGap);
    }
    return height;
}

/// What a part asks for to stand on a line with others: a single one that takes what is left makes
/// do with its least.
int Arrangement::WidthInFlow(const LayoutNode& node) const {
    const Widths widths = WidthsOf(node);
    return widths.widens && node.children.empty() ? widths.least : widths.wanted;
}

/// Whether a part says something of the one before it, and a line has room for both.
bool Arrangement::AreOne(const LayoutNode& before, const LayoutNode& node, int width) const {
    const Arranged* const leaf = Of(node);
    const Arranged* const told = Of(before);
    return leaf != nullptr && leaf->TellsOfPrevious() && told != nullptr && told->Widens() &&
           WidthInFlow(before) + kColumnGap + WidthInFlow(node) <= width;
}

/// The parts of a line that stay together: two at the most.
std::vector<Arrangement::Nodes> Arrangement::UnitsOf(const Nodes& nodes, int width) const {
    std::vector<Nodes> units;
    for (const LayoutNode* node : nodes) {
        if (node->kind == Kind::kSpace) {
            continue;
        }
        const bool joins = !units.empty() && units.back().size() == 1 &&
                           AreOne(*units.back().front(), *node, width);
        joins ? units.back().push_back(node) : units.push_back({node});
    }
    return units;
}

/// As many on a line as go there.
int Arrangement::PlaceFlowing(const Nodes& nodes, int row, int column, int width) {
    Nodes line;
    int used = 0;
    int height = 0;
    for (const Nodes& unit : UnitsOf(nodes, width)) {
        int wanted = GapsBetween(unit.size());
        for (const LayoutNode* node : unit) {
            wanted += WidthInFlow(*node);
        }
        if (!line.empty() && used + kColumnGap + wanted > width) {
            height += PlaceLine(line, row + height, column, width);
            line.clear();
            used = 0;
        }
        used += (line.empty() ? 0 : kColumnGap) + wanted;
        line.insert(line.end(), unit.begin(), unit.end());
    }
    return height + (line.empty() ? 0 : PlaceLine(line, row + height, column, width));
}

/// A part that is alone may be wider than the line.
int Arrangement::PlaceLine(const Nodes& line, int row, int column, int width) {
    return line.size() == 1 ? Place(*line.front(), row, column, width)
                            : PlaceBeside(line, row, column, width);
}

}  // namespace horavex
