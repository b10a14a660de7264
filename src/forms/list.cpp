#include "forms/list.h"

#include <algorithm>
#include <utility>

#include "base/fault.h"

namespace horavex {

namespace {

const std::string kNoItem;

ControlValues WithPageOnView(ControlValues definition) {
    definition.listIndex = std::max(definition.listIndex, 0);
    return definition;
}

}  // namespace

void List::RequireItem(int index) const {
    if (index < 0 || index >= ListCount()) {
        throw BoundsFault(Name() + " has no item " + std::to_string(index));
    }
}

const std::string& List::ListItem(int index) const {
    RequireItem(index);
    return Items()[static_cast<std::size_t>(index)];
}

void List::AddItem(const std::string& item) {
    Alter([&](ControlValues& now) { now.items.push_back(item); });
}

void List::Clear() {
    ++clearings_;
    Assign(&ControlValues::items, {});
    Assign(&ControlValues::refusals, {});
    Assign(&ControlValues::listIndex, -1);
}

void List::Restore() {
    ++clearings_;
    Focusable::Restore();
}

std::string List::ItemRefusal(int index) const {
    const auto found = Now().refusals.find(index);
    return found == Now().refusals.end() ? std::string() : found->second;
}

void List::SetItemRefusal(int index, const std::string& reason) {
    RequireItem(index);
    if (ItemRefusal(index) != reason) {
        Alter([&](ControlValues& now) { now.refusals[index] = reason; });
    }
}

void List::SetListIndex(int index) {
    if (index != -1) {
        RequireItem(index);
    }
    if (Assign(&ControlValues::listIndex, index)) {
        Selected();
        Fire(onClick);
    }
}

void List::UserSelect(int index) {
    if (BeginUserAction() && ItemRefusal(index).empty()) {
        SetListIndex(index);
    }
}

ListBox::ListBox(Element& parent, ControlName name, ControlValues definition)
    : List(ControlKind::kListBox, parent, std::move(name), std::move(definition)) {}

const std::string& ListBox::Text() const {
    return ListIndex() == -1 ? kNoItem : ListItem(ListIndex());
}

void ListBox::UserDoubleClick() {
    if (BeginUserAction()) {
        Fire(onDblClick);
    }
}

TabStrip::TabStrip(Element& parent, ControlName name, ControlValues definition)
    : List(ControlKind::kTabStrip, parent, std::move(name), WithPageOnView(std::move(definition))) {
}

void TabStrip::SetTabCaption(int index, const std::string& caption) {
    RequireItem(index);
    Alter([&](ControlValues& now) { now.items[static_cast<std::size_t>(index)] = caption; });
}

}  // namespace horavex
