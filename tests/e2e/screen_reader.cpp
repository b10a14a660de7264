// What a screen reader gets. "tree" prints what stands in the windows of Horavex, one thing a
// line, each set in by its depth:
//
//     frame | Horavex
//       push button | Settings
//       list item | Zuhr 11:53 AM | selected
//       combo box | Language: English
//
// "changes" prints the names that change and what is announced, until it is ended.
#include <atspi/atspi.h>

#include <iostream>
#include <memory>
#include <string>

namespace {

constexpr int kDeepest = 20;

struct Unref {
    void operator()(void* object) const { g_object_unref(object); }
};
using Accessible = std::unique_ptr<AtspiAccessible, Unref>;

std::string Taken(gchar* text) {
    const std::string taken = text == nullptr ? "" : text;
    g_free(text);
    return taken;
}

std::string NameOf(AtspiAccessible* object) {
    return Taken(atspi_accessible_get_name(object, nullptr));
}

std::string RoleOf(AtspiAccessible* object) {
    return Taken(atspi_accessible_get_role_name(object, nullptr));
}

std::string StatesOf(AtspiAccessible* object) {
    static constexpr std::pair<AtspiStateType, const char*> kTold[] = {
        {ATSPI_STATE_FOCUSED, " | focused"},
        {ATSPI_STATE_SELECTED, " | selected"},
        {ATSPI_STATE_CHECKED, " | checked"}};
    std::unique_ptr<AtspiStateSet, Unref> states(atspi_accessible_get_state_set(object));
    std::string told;
    if (states != nullptr && !atspi_state_set_contains(states.get(), ATSPI_STATE_ENABLED)) {
        told = " | disabled";
    }
    for (const auto& [state, word] : kTold) {
        if (states != nullptr && atspi_state_set_contains(states.get(), state)) {
            told += word;
        }
    }
    return told;
}

bool IsOnView(AtspiAccessible* object) {
    const std::unique_ptr<AtspiStateSet, Unref> states(atspi_accessible_get_state_set(object));
    return states != nullptr && atspi_state_set_contains(states.get(), ATSPI_STATE_VISIBLE);
}

/// What labels beside the object say of it, the nearest first, each in front of a colon.
std::string LabelsOf(AtspiAccessible* object) {
    GArray* relations = atspi_accessible_get_relation_set(object, nullptr);
    std::string labels;
    for (guint index = 0; relations != nullptr && index < relations->len; ++index) {
        AtspiRelation* relation = g_array_index(relations, AtspiRelation*, index);
        const bool isLabel =
            atspi_relation_get_relation_type(relation) == ATSPI_RELATION_LABELLED_BY;
        for (gint target = 0; isLabel && target < atspi_relation_get_n_targets(relation);
             ++target) {
            labels += NameOf(Accessible(atspi_relation_get_target(relation, target)).get()) + ": ";
        }
        g_object_unref(relation);
    }
    if (relations != nullptr) {
        g_array_free(relations, TRUE);
    }
    return labels;
}

/// A list that drops down tells its chosen row as its name.
std::string SpokenNameOf(AtspiAccessible* object) {
    const bool dropsDown = atspi_accessible_get_role(object, nullptr) == ATSPI_ROLE_COMBO_BOX;
    return (dropsDown ? LabelsOf(object) : "") + NameOf(object);
}

std::string LineOf(AtspiAccessible* object) {
    const std::string description = Taken(atspi_accessible_get_description(object, nullptr));
    return RoleOf(object) + " | " + SpokenNameOf(object) +
           (description.empty() ? "" : " | " + description) + StatesOf(object);
}

template <class Visit>
void ForChildren(AtspiAccessible* object, Visit visit) {
    const int count = atspi_accessible_get_child_count(object, nullptr);
    for (int child = 0; child < count; ++child) {
        const Accessible found(atspi_accessible_get_child_at_index(object, child, nullptr));
        if (found != nullptr) {
            visit(found.get());
        }
    }
}

void PrintTree(AtspiAccessible* object, int depth = 0) {
    if (depth > kDeepest || !IsOnView(object)) {
        return;
    }
    std::cout << std::string(2 * static_cast<std::size_t>(depth), ' ') << LineOf(object) << '\n';
    ForChildren(object, [depth](AtspiAccessible* child) { PrintTree(child, depth + 1); });
}

void PrintProgram() {
    const Accessible desktop(atspi_get_desktop(0));
    ForChildren(desktop.get(), [](AtspiAccessible* program) {
        ForChildren(program, [](AtspiAccessible* window) { PrintTree(window); });
    });
}

void PrintChange(AtspiEvent* event, void*) {
    std::cout << LineOf(event->source) << std::endl;
    g_boxed_free(ATSPI_TYPE_EVENT, event);
}

void PrintChanges() {
    AtspiEventListener* listener = atspi_event_listener_new(PrintChange, nullptr, nullptr);
    atspi_event_listener_register(listener, "object:property-change:accessible-name", nullptr);
    atspi_event_listener_register(listener, "object:state-changed:selected", nullptr);
    std::cout << "listening" << std::endl;
    atspi_event_main();
    g_object_unref(listener);
}

}  // namespace

int main(int count, char** words) {
    const std::string task = count == 2 ? words[1] : "";
    if (atspi_init() != 0 || (task != "tree" && task != "changes")) {
        std::cerr << "screen_reader tree|changes, on a session's bus with assistive services\n";
        return 2;
    }
    task == "tree" ? PrintProgram() : PrintChanges();
    return 0;
}
