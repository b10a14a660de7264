#pragma once

#include <QListView>
#include <QStyledItemDelegate>

namespace horavex {

/// Draws the texts of a list whose entries may take several lines. The lines behind the first stand
/// further in, so that none of them looks like another entry.
class TopicLines : public QStyledItemDelegate {
public:
    /// The list owns what draws it.
    explicit TopicLines(QListView& list) : QStyledItemDelegate(&list), list_(list) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    const QListView& list_;
};

}  // namespace horavex
