#include "desktop/form_window/grid_binder.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStyle>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "desktop/form_window/caption_text.h"
#include "desktop/user_text.h"

namespace horavex {

namespace {

constexpr int kWheelNotch = 120;  // eighths of a degree
constexpr int kRowHeight = 20;    // pixels, unless the texts need more

QStringList TextsOf(const std::vector<std::string>& texts) {
    QStringList shown;
    for (const std::string& text : texts) {
        shown << UserText(text);
    }
    return shown;
}

/// The look of a row: set off in bold, the present one in the colours of a selection.
void Dress(QTableWidgetItem& item, const Grid::Row& row, const QPalette& palette) {
    QFont font = item.font();
    font.setBold(row.setOff || row.current);
    item.setFont(font);
    if (row.current) {
        item.setBackground(palette.highlight());
        item.setForeground(palette.highlightedText());
    } else if (row.setOff) {
        item.setBackground(palette.alternateBase());
    }
}

/// What the widest text of a column needs, in bold as it may be set off another time.
int WidthOf(const QTableWidget& table, int column) {
    QFont bold = table.font();
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    int width = 0;
    for (int row = 0; row < table.rowCount(); ++row) {
        const QTableWidgetItem* item = table.item(row, column);
        width = std::max(width, item == nullptr ? 0 : metrics.horizontalAdvance(item->text()));
    }
    return width + 3 * metrics.averageCharWidth();
}

int NeedOf(const QTableWidget& table, int column) {
    return std::max(WidthOf(table, column), table.horizontalHeader()->sectionSizeHint(column));
}

}  // namespace

QSize WholeGrid(const QTableWidget& table) {
    int width = 0;
    for (int column = 0; column < table.columnCount(); ++column) {
        width += NeedOf(table, column);
    }
    const int rows = table.rowCount() * table.verticalHeader()->defaultSectionSize();
    const int height = table.horizontalHeader()->sizeHint().height() + rows;
    const int frame = 2 * table.frameWidth();
    return {width + frame + table.verticalScrollBar()->sizeHint().width(),
            height + frame + table.horizontalScrollBar()->sizeHint().height()};
}

GridBinder::GridBinder(Control& bound, QWidget& boundWidget, RefreshLater refreshLater)
    : BinderOf(bound, boundWidget, std::move(refreshLater)) {
    widget.setEditTriggers(QAbstractItemView::NoEditTriggers);
    widget.setSelectionMode(QAbstractItemView::NoSelection);
    widget.setShowGrid(false);
    widget.verticalHeader()->hide();
    widget.setWordWrap(false);
    widget.setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);  // beside other parts
    const int height = std::max(kRowHeight, widget.fontMetrics().height() + 2);
    widget.verticalHeader()->setMinimumSectionSize(height);
    widget.verticalHeader()->setDefaultSectionSize(height);
    widget.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    widget.viewport()->installEventFilter(this);
}

void GridBinder::Show() {
    ShowHeads();
    widget.setRowCount(static_cast<int>(control.rows.size()));
    for (int row = 0; row < widget.rowCount(); ++row) {
        ShowRow(row);
    }
    ShareWidth();
    if (std::exchange(shown_, control.rows) != control.rows) {
        GoToCurrentRow();
    }
}

/// The first row where none is the present one.
void GridBinder::GoToCurrentRow() {
    const auto& rows = control.rows;
    const auto current =
        std::find_if(rows.begin(), rows.end(), [](const Grid::Row& row) { return row.current; });
    const auto row = current == rows.end() ? 0 : static_cast<int>(current - rows.begin());
    widget.setCurrentCell(row, 0);
    widget.scrollTo(widget.currentIndex(), QAbstractItemView::PositionAtCenter);
}

/// What is left for each of the others where the columns that need more than it have what they
/// need.
int GridBinder::ShareBeside(const std::vector<int>& needs) const {
    const int whole = widget.viewport()->width();
    int share = whole;
    for (int before = whole + 1; share < before;) {
        before = share;
        int left = whole;
        int others = 0;
        for (const int need : needs) {
            left -= need > share ? need : 0;
            others += need > share ? 0 : 1;
        }
        share = std::min(share, left / std::max(others, 1));
    }
    return share;
}

/// Equal columns, but for those whose texts need more.
void GridBinder::ShareWidth() {
    QHeaderView& header = *widget.horizontalHeader();
    std::vector<int> needs;
    for (int column = 0; column < widget.columnCount(); ++column) {
        needs.push_back(NeedOf(widget, column));
    }
    const int share = ShareBeside(needs);
    for (int column = 0; column < widget.columnCount(); ++column) {
        const int need = needs[static_cast<std::size_t>(column)];
        header.setSectionResizeMode(column,
                                    need > share ? QHeaderView::Fixed : QHeaderView::Stretch);
        if (need > share) {
            header.resizeSection(column, need);
        }
    }
}

/// Where texts are read from the left.
Qt::Alignment GridBinder::SideOf(int column) const {
    return control.figures.contains(static_cast<std::size_t>(column)) ? Qt::AlignRight
                                                                      : Qt::AlignLeft;
}

void GridBinder::ShowHeads() {
    widget.setColumnCount(static_cast<int>(control.heads.size()));
    widget.setHorizontalHeaderLabels(TextsOf(control.heads));
    for (int column = 0; column < widget.columnCount(); ++column) {
        // The head of a column does not turn round with its window by itself.
        const Qt::Alignment side =
            QStyle::visualAlignment(widget.layoutDirection(), SideOf(column));
        widget.horizontalHeaderItem(column)->setTextAlignment(side | Qt::AlignVCenter);
    }
}

void GridBinder::ShowRow(int row) {
    const Grid::Row& shown = control.rows.at(static_cast<std::size_t>(row));
    const QStringList texts = TextsOf(shown.cells);
    for (int column = 0; column < texts.size(); ++column) {
        auto* item = new QTableWidgetItem(ShownText(texts[column], widget));
        item->setTextAlignment(SideOf(column) | Qt::AlignVCenter);
        Dress(*item, shown, widget.palette());
        widget.setItem(row, column, item);
    }
}

bool GridBinder::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) {
        ShareWidth();
    }
    if (event->type() == QEvent::PaletteChange && watched == &widget) {
        Show();  // the rows that stand out have its colours
    }
    if (event->type() == QEvent::Wheel && !Scrolls()) {
        Wheel(static_cast<QWheelEvent*>(event)->angleDelta().y());
        return true;
    }
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_PageUp || key == Qt::Key_PageDown) {
            Turn(key == Qt::Key_PageUp ? -1 : 1);
            return true;
        }
    }
    return BinderOf::eventFilter(watched, event);
}

bool GridBinder::Scrolls() const {
    return widget.verticalScrollBar()->maximum() > 0;
}

// A touchpad sends many small movements: a page for each notch's worth of them.
void GridBinder::Wheel(int delta) {
    wheel_ += delta;
    const int notches = wheel_ / kWheelNotch;
    wheel_ -= notches * kWheelNotch;
    if (notches != 0) {
        Turn(-notches);
    }
}

void GridBinder::Turn(int step) {
    Hand([this, step] { control.UserPage(step); });
}

}  // namespace horavex
