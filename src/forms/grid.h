#pragma once

#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "forms/focusable.h"

namespace horavex {

/// A table of texts that is read and not edited, one page of many.
class Grid : public Focusable {
public:
    Grid(Element& parent, ControlName name, ControlValues definition = {})
        : Focusable(ControlKind::kGrid, parent, std::move(name), std::move(definition)) {}

    struct Row {
        std::vector<std::string> cells;
        bool setOff = false;   // stands out from the others
        bool current = false;  // the row of the present moment

        bool operator==(const Row&) const = default;
    };

    /// A user turns the page, by the wheel or the page keys: -1 back, 1 on.
    std::function<void(int step)> onPage;

    /// They stay until they are changed or the form unloads; Refresh shows a change.
    std::vector<std::string> heads;
    std::vector<Row> rows;
    /// The columns of times and numbers, counted from 0: they end at one edge.
    std::set<std::size_t> figures;

    void UserPage(int step) {
        if (AcceptsUser() && onPage) {
            Fire([this, step] { onPage(step); });
        }
    }

protected:
    void Restore() override {
        Focusable::Restore();
        heads.clear();
        rows.clear();
        figures.clear();
    }
};

}  // namespace horavex
