#pragma once

#include <QAccessibleWidget>
#include <vector>

namespace horavex {

class TimesView;

/// The painted times as a list, whose selected item is the next prayer.
class AccessibleTimes : public QAccessibleWidget {
public:
    explicit AccessibleTimes(TimesView& view);
    ~AccessibleTimes() override;

    AccessibleTimes(const AccessibleTimes&) = delete;
    AccessibleTimes& operator=(const AccessibleTimes&) = delete;

    int childCount() const override;
    QAccessibleInterface* child(int row) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

private:
    TimesView& view_;
    mutable std::vector<QAccessible::Id> items_;  // by row, as they were asked for
};

}  // namespace horavex
