#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "base/fault.h"
#include "forms/control.h"

namespace horavex {

/// The side of a control array that its form knows.
class RuntimeMembers {
public:
    virtual ~RuntimeMembers() = default;
    RuntimeMembers(const RuntimeMembers&) = delete;
    RuntimeMembers& operator=(const RuntimeMembers&) = delete;

    /// The form unloads: members that its definition does not have go away.
    virtual void DropRuntimeMembers() = 0;

protected:
    explicit RuntimeMembers(Form& form);
};

/// Controls of one kind and name, told apart by their index. Indices may start anywhere and have
/// gaps; the order of the definition is the order of the form's controls.
template <class T>
class ControlArray : public RuntimeMembers {
public:
    struct Member {
        int index;  // 0 or more
        ControlValues values = {};
    };

    /// At least one member.
    ControlArray(Element& parent, std::string name, std::vector<Member> definition)
        : RuntimeMembers(parent.OwnerForm()),
          parent_(parent),
          name_(std::move(name)),
          definition_(std::move(definition)) {
        for (const Member& member : definition_) {
            Make(member.index, member.values);
        }
    }

    bool Contains(int index) const { return members_.contains(index); }

    /// Throws BoundsFault for an index without a member.
    T& operator()(int index) const {
        const auto found = members_.find(index);
        if (found == members_.end()) {
            throw BoundsFault(name_ + " has no member " + std::to_string(index));
        }
        return *found->second;
    }

    /// Makes a member at run time, with the definition of the first one; it lasts until the form
    /// unloads. Throws BoundsFault for an index that is taken.
    T& Load(int index) {
        if (Contains(index)) {
            throw BoundsFault(name_ + " already has a member " + std::to_string(index));
        }
        T& made = Make(index, definition_.front().values);
        if (bind_) {
            bind_(made);
        }
        return made;
    }

    /// Sets the handlers of each member through the given function, those made later included.
    void Bind(std::function<void(T&)> bind) {
        bind_ = std::move(bind);
        for (const auto& [index, member] : members_) {
            bind_(*member);
        }
    }

    void DropRuntimeMembers() override {
        std::erase_if(members_, [this](const auto& entry) { return !IsDefined(entry.first); });
    }

private:
    T& Make(int index, const ControlValues& values) {
        auto member = std::make_unique<T>(parent_, ControlName(name_, index), values);
        return *(members_[index] = std::move(member));
    }

    bool IsDefined(int index) const {
        for (const Member& member : definition_) {
            if (member.index == index) {
                return true;
            }
        }
        return false;
    }

    Element& parent_;
    std::string name_;
    std::vector<Member> definition_;
    std::map<int, std::unique_ptr<T>> members_;
    std::function<void(T&)> bind_;
};

}  // namespace horavex
