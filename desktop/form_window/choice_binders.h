#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QRadioButton>
#include <QTabBar>

#include "desktop/form_window/binder_of.h"
#include "desktop/form_window/typed_line.h"
#include "forms/check_box.h"
#include "forms/combo_box.h"
#include "forms/list.h"
#include "forms/option_button.h"

namespace horavex {

// Controls that a user chooses with.

class CheckBoxBinder : public BinderOf<CheckBox, QCheckBox> {
public:
    CheckBoxBinder(Control& bound, QWidget& boundWidget, RefreshLater refreshLater);

protected:
    void Show() override;
};

class OptionButtonBinder : public BinderOf<OptionButton, QRadioButton> {
public:
    OptionButtonBinder(Control& bound, QWidget& boundWidget, RefreshLater refreshLater);

protected:
    void Show() override;
};

/// Items are added as they come, so that a list of thousands can be filled one by one. A row that
/// the form chooses comes to the middle, and stays there as the list gets its size.
class ListBoxBinder : public BinderOf<ListBox, QListWidget> {
public:
    ListBoxBinder(Control& bound, QWidget& boundWidget, RefreshLater refreshLater);

protected:
    void Show() override;

private:
    bool eventFilter(QObject* watched, QEvent* event) override;

    void ShowItems();
    void ShowItemsAnewInOtherDigits();
    void ShowCurrentInTheMiddle();

    int clearings_ = -1;  // of the control, when its items were last shown
    QString zero_;        // of the digits that they were last shown in
};

/// What is typed goes to the form alone: it adds nothing to the list.
class ComboBoxBinder : public BinderOf<ComboBox, QComboBox> {
public:
    ComboBoxBinder(Control& bound, QWidget& boundWidget, RefreshLater refreshLater);

protected:
    void Show() override;

private:
    void ShowItems();
    void KeepWidest();
    void ShowRefusals();
    void TellWhole();
    void ShowTyped(QLineEdit& line);
    bool eventFilter(QObject* watched, QEvent* event) override;

    TypedLine line_;
};

/// The tabs alone; what lies on a page is shown and hidden by the form.
class TabStripBinder : public BinderOf<TabStrip, QTabBar> {
public:
    TabStripBinder(Control& bound, QWidget& boundWidget, RefreshLater refreshLater);

protected:
    void Show() override;
};

}  // namespace horavex
