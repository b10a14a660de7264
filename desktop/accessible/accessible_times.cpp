#include "desktop/accessible/accessible_times.h"

#include <QWindow>

#include "desktop/face/times_view.h"

namespace horavex {

namespace {

/// One time with its name. A row that the view has no longer is invalid.
class AccessibleRow : public QAccessibleInterface {
public:
    AccessibleRow(TimesView& view, std::size_t row) : view_(view), row_(row) {}

    std::size_t Row() const { return row_; }

    bool isValid() const override { return row_ < view_.Rows().size(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(&view_);
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    void setText(QAccessible::Text, const QString&) override {}
    QWindow* window() const override { return view_.window()->windowHandle(); }

    QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Name || !isValid()) {
            return {};
        }
        const PrayerEntry& entry = view_.Rows()[row_];
        return entry.name + u' ' + entry.time;
    }

    QRect rect() const override {
        const QRect area = view_.AreaOf(row_).toRect();
        return {view_.mapToGlobal(area.topLeft()), area.size()};
    }

    QAccessible::State state() const override {
        QAccessible::State state;
        state.invalid = !isValid();
        state.invisible = !view_.isVisible();
        state.readOnly = true;
        state.selectable = true;
        state.selected = view_.Next() == row_;
        return state;
    }

private:
    TimesView& view_;
    std::size_t row_;
};

}  // namespace

AccessibleTimes::AccessibleTimes(TimesView& view)
    : QAccessibleWidget(&view, QAccessible::List), view_(view) {}

AccessibleTimes::~AccessibleTimes() {
    for (const QAccessible::Id item : items_) {
        QAccessible::deleteAccessibleInterface(item);
    }
}

int AccessibleTimes::childCount() const {
    return static_cast<int>(view_.Rows().size());
}

QAccessibleInterface* AccessibleTimes::child(int row) const {
    if (row < 0 || row >= childCount()) {
        return nullptr;
    }
    while (items_.size() <= static_cast<std::size_t>(row)) {
        items_.push_back(
            QAccessible::registerAccessibleInterface(new AccessibleRow(view_, items_.size())));
    }
    return QAccessible::accessibleInterface(items_[static_cast<std::size_t>(row)]);
}

int AccessibleTimes::indexOfChild(const QAccessibleInterface* child) const {
    const auto* row = dynamic_cast<const AccessibleRow*>(child);
    return row == nullptr ? -1 : static_cast<int>(row->Row());
}

}  // namespace horavex
