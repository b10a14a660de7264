#include "desktop/ports/qt_notices.h"

#include <algorithm>
#include <utility>

#include "desktop/ports/notice_call.h"

namespace horavex {

namespace {

constexpr const char* kService = "org.freedesktop.Notifications";
constexpr const char* kPath = "/org/freedesktop/Notifications";

// The reason of a notice's end that means the user.
constexpr uint kDismissed = 2;

// What the toolkit takes an activation from.
constexpr const char* kTokenVariable = "XDG_ACTIVATION_TOKEN";

// The longest time that a service has to take a notice.
constexpr std::chrono::seconds kPatience{3};

// A close that comes so soon behind a press is the service's doing.
constexpr std::chrono::seconds kBehindPress{1};

bool IsError(const QDBusMessage& answer) {
    return answer.type() == QDBusMessage::ErrorMessage;
}

}  // namespace

QtNotices::QtNotices(const QDBusConnection& bus, std::function<Time()> now)
    : now_(std::move(now)),
      service_(bus, QLatin1String(kService), QLatin1String(kPath), QLatin1String(kService),
               BusObject::Start::kWhenNeeded),
      owner_(QLatin1String(kService), bus),
      acted_(service_.Hear("ActionInvoked", [this](const auto& signal) { Act(signal); })),
      closed_(service_.Hear("NotificationClosed", [this](const auto& signal) { Close(signal); })),
      activated_(service_.Hear("ActivationToken", [this](const QDBusMessage& signal) {
          token_ = signal.arguments().value(1).toString();
      })) {
    owner_.connect(&owner_, &QDBusServiceWatcher::serviceOwnerChanged, &context_,
                   [this](const QString&, const QString&, const QString& owner) { Forget(owner); });
    Look(bus);
}

void QtNotices::Look(const QDBusConnection& bus) {
    const QString name = QStringLiteral("org.freedesktop.DBus");
    const BusObject daemon(bus, name, QStringLiteral("/org/freedesktop/DBus"), name);
    daemon.Ask(context_, "NameHasOwner", {QLatin1String(kService)},
               [this](const QDBusMessage& answer) { isRunning_ = ValueOf(answer).toBool(); });
    daemon.Ask(context_, "ListActivatableNames", {}, [this](const QDBusMessage& answer) {
        isStartable_ = ValueOf(answer).toStringList().contains(QLatin1String(kService));
    });
}

// A service of a new owner shows nothing of ours, and has not failed yet.
void QtNotices::Forget(const QString& owner) {
    ++owners_;
    isRunning_ = !owner.isEmpty();
    hasFailed_ = false;
    abilities_.reset();
    for (auto& [kind, place] : places_) {
        Renew(place);
    }
    if (HasService()) {
        SettleAll();
    }
}

// What goes by itself has had its time.
void QtNotices::Renew(Place& place) const {
    place.number = 0;
    place.isSent = place.isSent && (!place.wanted || place.wanted->quiet);
    if (place.waitsSince) {
        place.waitsSince = now_();
    }
}

bool QtNotices::HasService() {
    hasFailed_ = hasFailed_ || IsLate();
    return (isRunning_ || isStartable_) && !hasFailed_;
}

bool QtNotices::IsLate() const {
    return std::ranges::any_of(places_, [this](const auto& entry) {
        const auto& since = entry.second.waitsSince;
        return since && now_() - *since >= kPatience;
    });
}

void QtNotices::Show(NoticeKind kind, const Notice& notice) {
    Place& place = places_[kind];
    place.wanted = notice;
    place.isSent = false;
    Settle(kind);
}

void QtNotices::Withdraw(NoticeKind kind) {
    places_[kind].wanted.reset();
    Settle(kind);
}

/// Brings the service to what is wanted; while it owes a number, a newer text has to wait. One that
/// is withdrawn then is closed at once by the number it takes over, should nobody be there to hear
/// the answer, and once more by the number that the answer tells.
void QtNotices::Settle(NoticeKind kind) {
    Place& place = places_[kind];
    if (!place.wanted && place.number != 0) {
        service_.Tell("CloseNotification", {std::exchange(place.number, 0)});
    }
    if (place.isAwaited) {
        return;
    }
    if (!place.wanted || place.isSent) {
        place.waitsSince.reset();
        return;
    }
    place.waitsSince = place.waitsSince.value_or(now_());
    abilities_ ? Send(kind) : AskAbilities();
}

void QtNotices::SettleAll() {
    for (const auto& [kind, place] : places_) {
        Settle(kind);
    }
}

void QtNotices::Send(NoticeKind kind) {
    Place& place = places_[kind];
    place.isSent = true;
    place.isAwaited = true;
    service_.Ask(
        context_, "Notify", NotifyArguments(kind, *place.wanted, place.number, *abilities_),
        [this, kind, owners = owners_](const QDBusMessage& answer) { Take(kind, answer, owners); });
}

// An error that an owner of the name leaves behind says nothing of the next one.
void QtNotices::Take(NoticeKind kind, const QDBusMessage& answer, int owners) {
    Place& place = places_[kind];
    place.isAwaited = false;
    place.waitsSince.reset();
    place.number = ValueOf(answer).toUInt();
    hasFailed_ = hasFailed_ || (IsError(answer) && owners == owners_);
    Settle(kind);
}

void QtNotices::AskAbilities() {
    if (!std::exchange(areAbilitiesAsked_, true)) {
        service_.Ask(context_, "GetCapabilities", {},
                     [this, owners = owners_](const QDBusMessage& answer) {
                         TakeAbilities(answer, owners);
                     });
    }
}

// A service that does not tell counts as one without any, and as one that cannot be started.
void QtNotices::TakeAbilities(const QDBusMessage& answer, int owners) {
    areAbilitiesAsked_ = false;
    if (!IsError(answer) || owners == owners_) {
        isStartable_ = isStartable_ && !IsError(answer);
        abilities_ = ValueOf(answer).toStringList();
    }
    SettleAll();
}

void QtNotices::Act(const QDBusMessage& signal) {
    const QString token = std::exchange(token_, {});
    const QString key = signal.arguments().value(1).toString();
    const std::optional<NoticeKind> kind = KindOf(signal);
    if (!kind || !onAction) {
        return;
    }
    places_[*kind].pressedAt = now_();
    if (key == QLatin1String(kStopKey)) {
        Withdraw(*kind);  // a service may leave what stands, buttons pressed or not
        onAction(*kind, NoticeAction::kStop);
    } else if (key == QLatin1String(kOpenKey) || key == QLatin1String(kClickKey)) {
        Open(*kind, token);
    }
}

void QtNotices::Open(NoticeKind kind, const QString& token) const {
    qputenv(kTokenVariable, token.toUtf8());
    onAction(kind, NoticeAction::kOpen);
    qunsetenv(kTokenVariable);
}

// Nobody has put away the text that is on its way.
void QtNotices::Close(const QDBusMessage& signal) {
    const std::optional<NoticeKind> kind = KindOf(signal);
    if (!kind) {
        return;
    }
    Place& place = places_[*kind];
    place.number = 0;
    const bool isBehindPress = IsBehindPress(place);
    const bool isUsers = signal.arguments().value(1).toUInt() == kDismissed;
    if (place.isAwaited) {
        return;
    }
    if (isBehindPress) {
        ShowAgain(*kind);
    } else if (isUsers && onAction) {
        onAction(*kind, NoticeAction::kDismiss);
    }
}

/// Whether a close comes right behind a press, which counts for one close.
bool QtNotices::IsBehindPress(Place& place) const {
    const std::optional<Time> pressed = std::exchange(place.pressedAt, std::nullopt);
    return pressed && now_() - *pressed < kBehindPress;
}

// Some services put a notice away behind any press of its buttons. One that is to stand comes
// again: nothing else on view might stop its athan.
void QtNotices::ShowAgain(NoticeKind kind) {
    Place& place = places_[kind];
    if (place.wanted && !place.wanted->quiet) {
        place.isSent = false;
        Settle(kind);
    }
}

std::optional<NoticeKind> QtNotices::KindOf(const QDBusMessage& signal) const {
    const uint number = signal.arguments().value(0).toUInt();
    for (const auto& [kind, place] : places_) {
        if (place.number != 0 && place.number == number) {
            return kind;
        }
    }
    return std::nullopt;
}

}  // namespace horavex
