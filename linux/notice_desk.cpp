#include "linux/notice_desk.h"

#include <algorithm>
#include <utility>

#include "base/markup.h"

namespace horavex {

namespace {

// Keys of the buttons. A click on the notice itself counts as the second one.
constexpr const char* kStopKey = "stop";
constexpr const char* kOpenKey = "open";
constexpr const char* kClickKey = "default";

// Urgencies of the service. Its lowest is of no use: some desktops show no banner for it, and keep
// it in no list.
constexpr std::uint8_t kNormal = 1;
constexpr std::uint8_t kCritical = 2;

// Milliseconds on view.
constexpr std::int32_t kAsTheServiceLikes = -1;
constexpr std::int32_t kForEver = 0;

// The reason of a notice's end that means the user.
constexpr std::uint32_t kDismissed = 2;

// The longest time that a service has to take a notice.
constexpr std::chrono::seconds kPatience{3};

// A close that comes so soon behind a press is the service's doing.
constexpr std::chrono::seconds kBehindPress{1};

bool Contains(const std::vector<std::string>& words, const char* word) {
    return std::ranges::find(words, word) != words.end();
}

std::vector<std::string> ActionsOf(const Notice& notice) {
    std::vector<std::string> actions;
    const auto add = [&](const char* key, const std::string& caption) {
        if (!caption.empty()) {
            actions.insert(actions.end(), {key, caption});
        }
    };
    add(kClickKey, notice.openCaption);
    add(kOpenKey, notice.openCaption);
    add(kStopKey, notice.stopCaption);
    return actions;
}

/// abilities: what the service says that it can.
NoticeCall CallFor(NoticeKind kind, const Notice& notice, std::uint32_t replaced,
                   const std::vector<std::string>& abilities) {
    const bool readsMarks = Contains(abilities, "body-markup");
    return {
        .replaced = replaced,
        .title = notice.title,
        .text = readsMarks ? EscapedForMarkup(notice.text) : notice.text,
        .actions = Contains(abilities, "actions") ? ActionsOf(notice) : std::vector<std::string>(),
        .urgency = notice.quiet ? kNormal : kCritical,
        .category = kind == NoticeKind::kMissed ? "x-horavex.missed" : "x-horavex.prayer",
        .quiet = notice.quiet,
        .timeout = notice.quiet ? kAsTheServiceLikes : kForEver};
}

}  // namespace

void NoticeDesk::HearRunning(bool isRunning) {
    isRunning_ = isRunning;
    SettleWhereServed();
}

void NoticeDesk::HearStartable(bool isStartable) {
    isStartable_ = isStartable;
    SettleWhereServed();
}

void NoticeDesk::HearEnd() {
    isStartable_ = false;
    areAbilitiesAsked_ = false;
    for (auto& [kind, place] : places_) {
        place.isAwaited = false;
    }
    HearOwner(false);
}

// A service of a new owner shows nothing of ours, and has not failed yet.
void NoticeDesk::HearOwner(bool isThere) {
    ++owners_;
    isRunning_ = isThere;
    hasFailed_ = false;
    abilities_.reset();
    for (auto& [kind, place] : places_) {
        Renew(place);
    }
    SettleWhereServed();
}

// What goes by itself has had its time.
void NoticeDesk::Renew(Place& place) const {
    place.number = 0;
    place.isSent = place.isSent && (!place.wanted || place.wanted->quiet);
    if (place.waitsSince) {
        place.waitsSince = now_();
    }
}

bool NoticeDesk::HasService() {
    hasFailed_ = hasFailed_ || IsLate();
    return (isRunning_ || isStartable_) && !hasFailed_;
}

bool NoticeDesk::IsLate() const {
    return std::ranges::any_of(places_, [this](const auto& entry) {
        const auto& since = entry.second.waitsSince;
        return since && now_() - *since >= kPatience;
    });
}

void NoticeDesk::Show(NoticeKind kind, const Notice& notice) {
    Place& place = places_[kind];
    place.wanted = notice;
    place.isSent = false;
    Settle(kind);
}

void NoticeDesk::Withdraw(NoticeKind kind) {
    places_[kind].wanted.reset();
    Settle(kind);
}

/// Brings the service to what is wanted; while it owes a number, a newer text has to wait. One that
/// is withdrawn then is closed at once by the number it takes over, should nobody be there to hear
/// the answer, and once more by the number that the answer tells.
void NoticeDesk::Settle(NoticeKind kind) {
    Place& place = places_[kind];
    if (!place.wanted && place.number != 0) {
        CloseNotice(std::exchange(place.number, 0));
    }
    if (place.isAwaited) {
        return;
    }
    if (!place.wanted || place.isSent) {
        place.waitsSince.reset();
        return;
    }
    place.waitsSince = place.waitsSince.value_or(now_());
    abilities_ ? Send(kind) : LearnAbilities();
}

void NoticeDesk::SettleAll() {
    for (const auto& [kind, place] : places_) {
        Settle(kind);
    }
}

void NoticeDesk::SettleWhereServed() {
    if (HasService()) {
        SettleAll();
    }
}

void NoticeDesk::Send(NoticeKind kind) {
    Place& place = places_[kind];
    place.isSent = true;
    place.isAwaited = true;
    Notify(CallFor(kind, *place.wanted, place.number, *abilities_),
           [this, kind, owners = owners_](std::optional<Number> number) {
               Take(kind, number, owners);
           });
}

// An error that an owner of the name leaves behind says nothing of the next one.
void NoticeDesk::Take(NoticeKind kind, std::optional<Number> number, int owners) {
    Place& place = places_[kind];
    place.isAwaited = false;
    place.waitsSince.reset();
    place.number = number.value_or(0);
    hasFailed_ = hasFailed_ || (!number && owners == owners_);
    Settle(kind);
}

void NoticeDesk::LearnAbilities() {
    if (!std::exchange(areAbilitiesAsked_, true)) {
        AskAbilities([this, owners = owners_](const std::optional<Words>& abilities) {
            TakeAbilities(abilities, owners);
        });
    }
}

// A service that does not tell counts as one without any, and as one that cannot be started.
void NoticeDesk::TakeAbilities(const std::optional<Words>& abilities, int owners) {
    areAbilitiesAsked_ = false;
    if (abilities || owners == owners_) {
        isStartable_ = isStartable_ && abilities;
        abilities_ = abilities.value_or(Words());
    }
    SettleAll();
}

void NoticeDesk::HearPress(Number number, const std::string& key) {
    const std::optional<NoticeKind> kind = KindOf(number);
    if (!kind || !onAction) {
        return;
    }
    places_[*kind].pressedAt = now_();
    if (key == kStopKey) {
        Withdraw(*kind);  // a service may leave what stands, buttons pressed or not
        onAction(*kind, NoticeAction::kStop);
    } else if (key == kOpenKey || key == kClickKey) {
        onAction(*kind, NoticeAction::kOpen);
    }
}

// Nobody has put away the text that is on its way.
void NoticeDesk::HearClose(Number number, std::uint32_t reason) {
    const std::optional<NoticeKind> kind = KindOf(number);
    if (!kind) {
        return;
    }
    Place& place = places_[*kind];
    place.number = 0;
    const bool isBehindPress = IsBehindPress(place);
    if (place.isAwaited) {
        return;
    }
    if (isBehindPress) {
        ShowAgain(*kind);
    } else if (reason == kDismissed && onAction) {
        onAction(*kind, NoticeAction::kDismiss);
    }
}

/// Whether a close comes right behind a press, which counts for one close.
bool NoticeDesk::IsBehindPress(Place& place) const {
    const std::optional<Time> pressed = std::exchange(place.pressedAt, std::nullopt);
    return pressed && now_() - *pressed < kBehindPress;
}

// Some services put a notice away behind any press of its buttons. One that is to stand comes
// again: nothing else on view might stop its athan.
void NoticeDesk::ShowAgain(NoticeKind kind) {
    Place& place = places_[kind];
    if (place.wanted && !place.wanted->quiet) {
        place.isSent = false;
        Settle(kind);
    }
}

std::optional<NoticeKind> NoticeDesk::KindOf(Number number) const {
    for (const auto& [kind, place] : places_) {
        if (place.number != 0 && place.number == number) {
            return kind;
        }
    }
    return std::nullopt;
}

}  // namespace horavex
