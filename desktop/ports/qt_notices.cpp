#include "desktop/ports/qt_notices.h"

#include <utility>

#include "desktop/ports/notice_call.h"

namespace horavex {

namespace {

// What the toolkit takes an activation from.
constexpr const char* kTokenVariable = "XDG_ACTIVATION_TOKEN";

bool IsError(const QDBusMessage& answer) {
    return answer.type() == QDBusMessage::ErrorMessage;
}

}  // namespace

QtNotices::QtNotices(const QDBusConnection& bus, std::function<Time()> now)
    : NoticeDesk(std::move(now)),
      service_(bus, QLatin1String(kService), QLatin1String(kPath), QLatin1String(kService),
               BusObject::Start::kWhenNeeded),
      owner_(QLatin1String(kService), bus),
      acted_(service_.Hear("ActionInvoked", [this](const auto& signal) { Press(signal); })),
      closed_(service_.Hear("NotificationClosed",
                            [this](const QDBusMessage& signal) {
                                HearClose(signal.arguments().value(0).toUInt(),
                                          signal.arguments().value(1).toUInt());
                            })),
      activated_(service_.Hear("ActivationToken", [this](const QDBusMessage& signal) {
          token_ = signal.arguments().value(1).toString();
      })) {
    owner_.connect(&owner_, &QDBusServiceWatcher::serviceOwnerChanged, &context_,
                   [this](const QString&, const QString&, const QString& owner) {
                       HearOwner(!owner.isEmpty());
                   });
    Look(bus);
}

void QtNotices::Look(const QDBusConnection& bus) {
    const QString name = QStringLiteral("org.freedesktop.DBus");
    const BusObject daemon(bus, name, QStringLiteral("/org/freedesktop/DBus"), name);
    daemon.Ask(context_, "NameHasOwner", {QLatin1String(kService)},
               [this](const QDBusMessage& answer) { HearRunning(ValueOf(answer).toBool()); });
    daemon.Ask(context_, "ListActivatableNames", {}, [this](const QDBusMessage& answer) {
        HearStartable(ValueOf(answer).toStringList().contains(QLatin1String(kService)));
    });
}

void QtNotices::AskAbilities(std::function<void(const std::optional<Words>&)> take) {
    service_.Ask(context_, "GetCapabilities", {}, [take](const QDBusMessage& answer) {
        Words words;
        for (const QString& word : ValueOf(answer).toStringList()) {
            words.push_back(word.toStdString());
        }
        take(IsError(answer) ? std::nullopt : std::optional(words));
    });
}

void QtNotices::Notify(const NoticeCall& call, std::function<void(std::optional<Number>)> take) {
    service_.Ask(context_, "Notify", NotifyArguments(call), [take](const QDBusMessage& answer) {
        take(IsError(answer) ? std::nullopt : std::optional<Number>(ValueOf(answer).toUInt()));
    });
}

void QtNotices::CloseNotice(Number number) {
    service_.Tell("CloseNotification", {number});
}

void QtNotices::Press(const QDBusMessage& signal) {
    qputenv(kTokenVariable, std::exchange(token_, {}).toUtf8());
    HearPress(signal.arguments().value(0).toUInt(),
              signal.arguments().value(1).toString().toStdString());
    qunsetenv(kTokenVariable);
}

}  // namespace horavex
