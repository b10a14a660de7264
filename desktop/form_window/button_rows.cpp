#include "desktop/form_window/button_rows.h"

#include <QBoxLayout>
#include <QPushButton>
#include <algorithm>
#include <vector>

namespace horavex {

namespace {

using Buttons = std::vector<QPushButton*>;

/// The buttons of a row in groups that stand together.
std::vector<Buttons> GroupsOf(const QHBoxLayout& row) {
    std::vector<Buttons> groups(1);
    for (int i = 0; i < row.count(); ++i) {
        if (auto* button = qobject_cast<QPushButton*>(row.itemAt(i)->widget())) {
            groups.back().push_back(button);
        } else if (!groups.back().empty()) {
            groups.emplace_back();
        }
    }
    return groups;
}

Buttons AllOf(const std::vector<Buttons>& groups) {
    Buttons all;
    for (const Buttons& group : groups) {
        all.insert(all.end(), group.begin(), group.end());
    }
    return all;
}

int WidestOf(const Buttons& buttons) {
    int widest = 0;
    for (const QPushButton* button : buttons) {
        widest = std::max(widest, button->sizeHint().width());
    }
    return widest;
}

void Even(const Buttons& buttons) {
    for (QPushButton* button : buttons) {
        button->setMinimumWidth(WidestOf(buttons));
    }
}

/// Whether as many of the widest button stand in the width, each with a space beside it.
bool Fit(const Buttons& buttons, int spacing, int width) {
    return int(buttons.size() + 1) * (WidestOf(buttons) + spacing) <= width;
}

}  // namespace

void EvenButtonRows(const QWidget& window) {
    for (const QHBoxLayout* row : window.findChildren<QHBoxLayout*>()) {
        const std::vector<Buttons> groups = GroupsOf(*row);
        const Buttons all = AllOf(groups);
        if (Fit(all, row->spacing(), window.width())) {
            Even(all);
        } else {
            std::ranges::for_each(groups, Even);
        }
    }
}

}  // namespace horavex
