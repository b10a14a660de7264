#pragma once

#include <string>
#include <vector>

#include "forms/focusable.h"

namespace horavex {

/// What all controls with a list of texts share. Indices count from 0; -1 is no selection.
class List : public Focusable {
public:
    using Focusable::Focusable;

    /// Fires when another item becomes selected, by a user or by code.
    Handler onClick;

    const std::vector<std::string>& Items() const { return Now().items; }
    int ListCount() const { return static_cast<int>(Items().size()); }

    /// Throws BoundsFault for an index without an item.
    const std::string& ListItem(int index) const;

    void AddItem(const std::string& item);

    /// Takes all items away; the selection goes without an event.
    virtual void Clear();

    int ListIndex() const { return Now().listIndex; }

    /// Throws BoundsFault below -1 and beyond the last item.
    void SetListIndex(int index);

    /// Why users cannot choose the item; empty where they can. Code can select it all the same.
    std::string ItemRefusal(int index) const;

    /// Throws BoundsFault for an index without an item.
    void SetItemRefusal(int index, const std::string& reason);

    /// Number of times that items went away. As long as it stays the same, items were only added,
    /// so that a front end need not look at those that it has.
    int Clearings() const { return clearings_; }

    /// Ignored for an item that is refused.
    void UserSelect(int index);

protected:
    void RequireItem(int index) const;
    void Restore() override;

    /// The selection has moved; onClick comes next.
    virtual void Selected() {}

private:
    int clearings_ = 0;
};

class ListBox : public List {
public:
    ListBox(Element& parent, ControlName name, ControlValues definition = {});

    Handler onDblClick;

    /// The selected item, or an empty text.
    const std::string& Text() const override;

    void UserDoubleClick();
};

/// Pages of a window, named by the items; the selected item is the page on view.
class TabStrip : public List {
public:
    /// The first page is on view unless the definition names another.
    TabStrip(Element& parent, ControlName name, ControlValues definition = {});

    void SetTabCaption(int index, const std::string& caption);
};

}  // namespace horavex
