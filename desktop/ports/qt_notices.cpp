#include "desktop/ports/qt_notices.h"

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

}  // namespace

QtNotices::QtNotices(const QDBusConnection& bus)
    : service_(bus, QLatin1String(kService), QLatin1String(kPath), QLatin1String(kService),
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

// A service of a new owner shows nothing of ours.
void QtNotices::Forget(const QString& owner) {
    isRunning_ = !owner.isEmpty();
    abilities_.reset();
    for (auto& [kind, place] : places_) {
        place.number = 0;
    }
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

/// Brings the service to what is wanted; while it owes a number, that has to wait.
void QtNotices::Settle(NoticeKind kind) {
    Place& place = places_[kind];
    if (place.isAwaited) {
        return;
    }
    if (!place.wanted && place.number != 0) {
        service_.Tell("CloseNotification", {std::exchange(place.number, 0)});
    } else if (place.wanted && !place.isSent) {
        abilities_ ? Send(kind) : AskAbilities();
    }
}

void QtNotices::Send(NoticeKind kind) {
    Place& place = places_[kind];
    place.isSent = true;
    place.isAwaited = true;
    place.isPressed = false;
    service_.Ask(context_, "Notify",
                 NotifyArguments(kind, *place.wanted, place.number, *abilities_),
                 [this, kind, &place](const QDBusMessage& answer) {
                     place.isAwaited = false;
                     place.number = ValueOf(answer).toUInt();
                     Settle(kind);
                 });
}

// A service that does not tell counts as one without any, and as one that cannot be started.
void QtNotices::AskAbilities() {
    if (std::exchange(areAbilitiesAsked_, true)) {
        return;
    }
    service_.Ask(context_, "GetCapabilities", {}, [this](const QDBusMessage& answer) {
        areAbilitiesAsked_ = false;
        isStartable_ = isStartable_ && answer.type() != QDBusMessage::ErrorMessage;
        abilities_ = ValueOf(answer).toStringList();
        for (const auto& [kind, place] : places_) {
            Settle(kind);
        }
    });
}

void QtNotices::Act(const QDBusMessage& signal) {
    const QString token = std::exchange(token_, {});
    const QString key = signal.arguments().value(1).toString();
    const std::optional<NoticeKind> kind = KindOf(signal);
    if (!kind || !onAction) {
        return;
    }
    places_[*kind].isPressed = true;
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

// Some services put a notice away behind a press of its buttons, which is not the user's doing; nor
// has the user seen the text that is on its way.
void QtNotices::Close(const QDBusMessage& signal) {
    const std::optional<NoticeKind> kind = KindOf(signal);
    if (!kind) {
        return;
    }
    Place& place = places_[*kind];
    place.number = 0;
    const bool isUsers = signal.arguments().value(1).toUInt() == kDismissed;
    if (isUsers && !place.isPressed && !place.isAwaited && onAction) {
        onAction(*kind, NoticeAction::kDismiss);
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
