#include "desktop/form_window/choice_binders.h"

#include <QLineEdit>
#include <QStandardItemModel>
#include <QStringList>
#include <utility>

#include "desktop/form_window/accessible_names.h"
#include "desktop/form_window/caption_text.h"
#include "desktop/user_text.h"

namespace horavex {

namespace {

QStringList ItemsOf(const List& list) {
    QStringList items;
    for (const std::string& item : list.Items()) {
        items << UserText(item);
    }
    return items;
}

}  // namespace

CheckBoxBinder::CheckBoxBinder(Control& bound, QWidget& boundWidget, RefreshLater refreshLater)
    : BinderOf(bound, boundWidget, std::move(refreshLater)) {
    connect(&widget, &QCheckBox::clicked, this, [this] { Hand([this] { control.UserClick(); }); });
}

void CheckBoxBinder::Show() {
    widget.setText(ShownCaption(control, widget));
    widget.setChecked(control.Value() != 0);
}

OptionButtonBinder::OptionButtonBinder(Control& bound, QWidget& boundWidget,
                                       RefreshLater refreshLater)
    : BinderOf(bound, boundWidget, std::move(refreshLater)) {
    connect(&widget, &QRadioButton::clicked, this,
            [this] { Hand([this] { control.UserClick(); }); });
}

// The toolkit never clears the set button of a group, while a group of options may have none.
void OptionButtonBinder::Show() {
    widget.setText(ShownCaption(control, widget));
    widget.setAutoExclusive(false);
    widget.setChecked(control.Value());
    widget.setAutoExclusive(true);
}

ListBoxBinder::ListBoxBinder(Control& bound, QWidget& boundWidget, RefreshLater refreshLater)
    : BinderOf(bound, boundWidget, std::move(refreshLater)) {
    widget.setUniformItemSizes(true);
    connect(&widget, &QListWidget::currentRowChanged, this,
            [this](int row) { Hand([this, row] { control.UserSelect(row); }); });
    connect(&widget, &QListWidget::itemDoubleClicked, this,
            [this] { Hand([this] { control.UserDoubleClick(); }); });
}

void ListBoxBinder::Show() {
    ShowItems();
    if (widget.currentRow() != control.ListIndex()) {
        widget.setCurrentRow(control.ListIndex());
        ShowCurrentInTheMiddle();
    }
}

void ListBoxBinder::ShowCurrentInTheMiddle() {
    if (widget.currentItem() != nullptr) {
        widget.scrollToItem(widget.currentItem(), QListWidget::PositionAtCenter);
    }
}

// Its new size counts when the widget has taken the event.
bool ListBoxBinder::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) {
        QMetaObject::invokeMethod(this, &ListBoxBinder::ShowCurrentInTheMiddle,
                                  Qt::QueuedConnection);
    }
    return BinderOf::eventFilter(watched, event);
}

void ListBoxBinder::ShowItemsAnewInOtherDigits() {
    const QString zero = UserText(std::string("0"));
    if (std::exchange(zero_, zero) != zero) {
        for (int row = 0; row < widget.count(); ++row) {
            widget.item(row)->setText(UserText(control.ListItem(row)));
        }
    }
}

void ListBoxBinder::ShowItems() {
    if (clearings_ != control.Clearings()) {
        clearings_ = control.Clearings();
        widget.clear();
    }
    ShowItemsAnewInOtherDigits();
    QStringList added;
    for (int row = widget.count(); row < control.ListCount(); ++row) {
        added << UserText(control.ListItem(row));
    }
    widget.addItems(added);
}

ComboBoxBinder::ComboBoxBinder(Control& bound, QWidget& boundWidget, RefreshLater refreshLater)
    : BinderOf(bound, boundWidget, std::move(refreshLater)) {
    connect(&widget, &QComboBox::activated, this,
            [this](int row) { Hand([this, row] { control.UserSelect(row); }); });
    connect(&widget, &QComboBox::currentTextChanged, this, [this] { TellWhole(); });
    widget.setEditable(control.Typed());
    if (control.Typed()) {
        widget.setInsertPolicy(QComboBox::NoInsert);  // the list is the form's
        widget.setCompleter(nullptr);
        connect(widget.lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) {
            line_.Type(text);
            Hand([this, typed = TypedText(text)] { control.UserEdit(typed); });
        });
    }
}

void ComboBoxBinder::Show() {
    ShowItems();
    ShowRefusals();
    if (control.Typed()) {
        ShowTyped(*widget.lineEdit());
    } else {
        widget.setCurrentIndex(control.ListIndex());
        TellWhole();  // another language may have come
    }
}

// A long choice may have less room than its text.
void ComboBoxBinder::TellWhole() {
    if (!control.Typed() && control.ToolTipText().empty()) {
        widget.setToolTip(widget.currentText());
    }
}

// The toolkit writes the item of an index anew, with the cursor at its end.
void ComboBoxBinder::ShowTyped(QLineEdit& line) {
    const int cursor = line.cursorPosition();
    const QString former = line.text();
    widget.setCurrentIndex(control.ListIndex());
    if (line.text() != former) {
        line.setText(former);
    }
    line_.Show(line, control.Text());
    if (line.cursorPosition() != cursor) {
        line.setCursorPosition(cursor);
    }
}

bool ComboBoxBinder::eventFilter(QObject* watched, QEvent* event) {
    if (line_.IsLeftBy(*event)) {
        Hand([] {});
    }
    return BinderOf::eventFilter(watched, event);
}

void ComboBoxBinder::ShowItems() {
    const QStringList items = ItemsOf(control);
    QStringList shown;
    for (int row = 0; row < widget.count(); ++row) {
        shown << widget.itemText(row);
    }
    if (shown != items) {
        widget.clear();
        widget.addItems(items);
        KeepWidest();
    }
}

// The toolkit goes on to tell the least size that the box had with its former items.
void ComboBoxBinder::KeepWidest() {
    if (widget.sizeAdjustPolicy() == QComboBox::AdjustToContents) {
        widget.setMinimumWidth(widget.sizeHint().width());
    }
}

void ComboBoxBinder::ShowRefusals() {
    const auto* model = dynamic_cast<QStandardItemModel*>(widget.model());
    for (int row = 0; model != nullptr && row < widget.count(); ++row) {
        const QString reason = UserText(control.ItemRefusal(row));
        model->item(row)->setEnabled(reason.isEmpty());
        model->item(row)->setToolTip(reason);
    }
}

TabStripBinder::TabStripBinder(Control& bound, QWidget& boundWidget, RefreshLater refreshLater)
    : BinderOf(bound, boundWidget, std::move(refreshLater)) {
    connect(&widget, &QTabBar::currentChanged, this,
            [this](int page) { Hand([this, page] { control.UserSelect(page); }); });
}

void TabStripBinder::Show() {
    const QStringList captions = ItemsOf(control);
    while (widget.count() > captions.size()) {
        widget.removeTab(widget.count() - 1);
    }
    while (widget.count() < captions.size()) {
        widget.addTab({});
    }
    for (int page = 0; page < widget.count(); ++page) {
        widget.setTabText(page, captions[page]);
    }
    widget.setCurrentIndex(control.ListIndex());
    SetOwnName(widget, captions.value(control.ListIndex()));
}

}  // namespace horavex
