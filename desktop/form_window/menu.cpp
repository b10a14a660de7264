#include "desktop/form_window/menu.h"

#include <QKeyEvent>
#include <algorithm>
#include <vector>

#include "desktop/documents/picture_file.h"
#include "desktop/form_window/caption_text.h"
#include "desktop/look/menu_parts.h"
#include "desktop/user_text.h"

namespace horavex {

namespace {

constexpr const char* kSeparator = "-";

QIcon IconOf(const MenuItem& item) {
    if (item.Picture().empty() || item.Checked()) {
        return {};
    }
    return PictureAt(item.Picture());
}

/// The toolkit writes what follows a tab at the far edge.
QString CaptionOf(const MenuItem& item) {
    const QString caption = WithoutBrokenKey(UserText(item.Caption()));
    const bool saysMore = !item.Aside().empty() && item.Aside() != item.Caption();
    return saysMore ? caption + u'\t' + UserText(item.Aside()) : caption;
}

void FillFrom(QMenu& menu, const MenuItem& source, Qt::LayoutDirection direction);

void AddEntry(QMenu& menu, MenuItem& item) {
    const QString caption = CaptionOf(item);
    QAction* action = nullptr;
    if (item.Caption() == kSeparator) {
        action = menu.addSeparator();
    } else if (item.Entries().empty()) {
        action = menu.addAction(IconOf(item), caption);
        action->setCheckable(item.Checked());
        action->setChecked(item.Checked());
    } else {
        QMenu* inner = menu.addMenu(IconOf(item), caption);
        FillFrom(*inner, item, menu.layoutDirection());
        action = inner->menuAction();
    }
    action->setEnabled(item.Enabled());
    action->setToolTip(UserText(item.Hint()));
    action->setData(QVariant::fromValue<void*>(&item));
}

/// What lies inside runs as the menu does around it: its entries may be names of another script.
void FillFrom(QMenu& menu, const MenuItem& source, Qt::LayoutDirection direction) {
    menu.setLayoutDirection(direction);
    menu.setToolTipsVisible(true);
    for (MenuItem* entry : source.Entries()) {
        if (entry->Visible()) {
            AddEntry(menu, *entry);
        }
    }
}

void Dress(QMenu& menu, const MenuLook& look) {
    menu.setPalette(look.colours);
    if (look.edge.isValid()) {
        menu.setProperty(look::kMenuEdge, look.edge);
    }
}

/// A menu that may be left sideways by the arrow keys, as one of a bar.
class SteppedMenu : public QMenu {
public:
    SteppedMenu(QWidget* parent, bool steps) : QMenu(parent), steps_(steps) {}

protected:
    void keyPressEvent(QKeyEvent* event) override {
        const int step = event->key() == Qt::Key_Left ? -1 : event->key() == Qt::Key_Right ? 1 : 0;
        if (step == 0 || OpensSubmenu(step) || !steps_ || parentWidget() == nullptr) {
            QMenu::keyPressEvent(event);
            return;
        }
        parentWidget()->setProperty(kMenuStep, isRightToLeft() ? -step : step);
        close();
    }

private:
    bool OpensSubmenu(int step) const {
        const int inwards = isRightToLeft() ? -1 : 1;
        const QAction* entry = activeAction();
        return step == inwards && entry != nullptr && entry->menu() != nullptr;
    }

    bool steps_;
};

}  // namespace

// A caption may begin with a name in other letters.
bool RunsFromRight(const MenuItem& menu) {
    const std::vector<MenuItem*> entries = menu.Entries();
    return std::any_of(entries.begin(), entries.end(), [](const MenuItem* entry) {
        return UserText(entry->Caption()).isRightToLeft();
    });
}

void FillMenu(QMenu& menu, const MenuItem& source) {
    FillFrom(menu, source, RunsFromRight(source) ? Qt::RightToLeft : Qt::LeftToRight);
}

bool ShowsEntriesOf(const QMenu& menu, const MenuItem& source) {
    std::vector<MenuItem*> entries = source.Entries();
    std::erase_if(entries, [](const MenuItem* entry) { return !entry->Visible(); });
    const QList<QAction*> actions = menu.actions();
    return std::equal(actions.begin(), actions.end(), entries.begin(), entries.end(),
                      [](const QAction* action, const MenuItem* entry) {
                          return ItemOf(action) == entry && action->text() == CaptionOf(*entry) &&
                                 action->isEnabled() == entry->Enabled() &&
                                 action->isChecked() == entry->Checked();
                      });
}

MenuItem* ItemOf(const QAction* action) {
    return action == nullptr ? nullptr : static_cast<MenuItem*>(action->data().value<void*>());
}

void RunMenu(const MenuItem& menu, QWidget* parent, QPoint place, const MenuLook& look) {
    SteppedMenu shown(parent, look.steps);
    FillMenu(shown, menu);
    Dress(shown, look);
    for (QMenu* inner : shown.findChildren<QMenu*>()) {
        Dress(*inner, look);
    }
    if (shown.isRightToLeft()) {
        place.rx() -= shown.sizeHint().width();
    }
    MenuItem* chosen = ItemOf(shown.exec(place));
    if (chosen != nullptr) {
        chosen->UserClick();
    }
}

}  // namespace horavex
