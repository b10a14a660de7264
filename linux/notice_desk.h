#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/notices.h"

namespace horavex {

/// What the notification service is asked to show, in its own terms.
struct NoticeCall {
    std::uint32_t replaced = 0;  // number of the notice whose place it takes; 0 for none
    std::string title;
    std::string text;                  // marked up where the service reads marks
    std::vector<std::string> actions;  // key and caption in turn
    std::uint8_t urgency = 0;
    std::string category;
    bool quiet = true;         // makes no sound; else it stays when one of its buttons is pressed
    std::int32_t timeout = 0;  // milliseconds; -1 as the service likes, 0 for none
};

/// The notification service of the desktop, org.freedesktop.Notifications, whatever library the bus
/// is reached by. A service that can be started counts as there, until its start fails; one that
/// refuses a notice, or says nothing to it for seconds, counts as none until another takes its
/// name. One that starts anew has forgotten what it showed, and gets again what is to stand. A
/// notice that is stopped goes, one whose other button is pressed stays.
class NoticeDesk : public Notices {
public:
    using Time = std::chrono::steady_clock::time_point;
    using Number = std::uint32_t;

    static constexpr const char* kService = "org.freedesktop.Notifications";
    static constexpr const char* kPath = "/org/freedesktop/Notifications";

    bool HasService() override;
    void Show(NoticeKind kind, const Notice& notice) override;
    void Withdraw(NoticeKind kind) override;

protected:
    using Words = std::vector<std::string>;

    explicit NoticeDesk(std::function<Time()> now) : now_(std::move(now)) {}

    // What goes to the service. Answers come later, from the event loop, or never; an error is no
    // value.

    virtual void AskAbilities(std::function<void(const std::optional<Words>&)> take) = 0;
    virtual void Notify(const NoticeCall& call,
                        std::function<void(std::optional<Number>)> take) = 0;
    virtual void CloseNotice(Number number) = 0;

    // What the bus tells.

    void HearRunning(bool isRunning);
    void HearStartable(bool isStartable);

    /// The name has another owner, or none any more.
    void HearOwner(bool isThere);

    /// The bus has ended: nothing that was asked for is answered any more.
    void HearEnd();

    /// A button was pressed, of a notice that may be another program's.
    void HearPress(Number number, const std::string& key);

    /// A notice is gone, for a reason by the service's numbers.
    void HearClose(Number number, std::uint32_t reason);

private:
    /// What is wanted of a kind, and what the service has.
    struct Place {
        std::optional<Notice> wanted;
        bool isSent = false;             // what is wanted
        bool isAwaited = false;          // the service has not yet told the number
        Number number = 0;               // of the one on view
        std::optional<Time> waitsSince;  // for the service to take what is wanted
        std::optional<Time> pressedAt;   // a button of the one on view
    };

    void Renew(Place& place) const;
    bool IsLate() const;
    void Settle(NoticeKind kind);
    void SettleAll();
    void SettleWhereServed();
    void Send(NoticeKind kind);
    void Take(NoticeKind kind, std::optional<Number> number, int owners);
    void LearnAbilities();
    void TakeAbilities(const std::optional<Words>& abilities, int owners);
    bool IsBehindPress(Place& place) const;
    void ShowAgain(NoticeKind kind);

    /// The kind of a notice on view; none for those of others.
    std::optional<NoticeKind> KindOf(Number number) const;

    std::function<Time()> now_;
    bool isRunning_ = false;
    bool isStartable_ = false;
    bool hasFailed_ = false;  // to show a notice
    int owners_ = 0;          // changes of the name's owner so far
    bool areAbilitiesAsked_ = false;
    std::optional<Words> abilities_;  // of the service that runs
    std::map<NoticeKind, Place> places_;
};

}  // namespace horavex
