#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "desktop/notification_service.h"
#include "desktop/ports/qt_notices.h"
#include "desktop/private_bus.h"

namespace horavex {

inline const Notice kAthan = {"Asr", "It is 3:12 PM", false, "Stop", "Open"};
inline const Notice kReminder = {"Asr", "in 10 minutes", true, "", "Open"};

/// Notices on a bus of the test with a notification service, and what the user does with them.
class QtNoticesTest : public PrivateBus {
protected:
    QtNoticesTest() { StartService(); }

    void StartService() { service.emplace(Connect("service")); }

    void MakeNotices() {
        notices.emplace(Connect("client"), [this] { return now; });
        notices->onAction = [this](NoticeKind kind, NoticeAction action) {
            actions.emplace_back(kind, action);
            token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN").toStdString();
        };
    }

    /// Shows it, and waits until the service knows it and its number is known.
    void Show(const Notice& notice, NoticeKind kind = NoticeKind::kPrayer) {
        const std::size_t before = service->shown.size();
        notices->Show(kind, notice);
        ASSERT_TRUE(Until([&] { return service->shown.size() > before; }));
        Settle();
    }

    void Signal(const char* name, const QVariantList& arguments) {
        service->Signal(name, arguments);
        Settle();
    }

    std::optional<NotificationService> service;
    QtNotices::Time now;
    std::optional<QtNotices> notices;
    std::vector<std::pair<NoticeKind, NoticeAction>> actions;
    std::string token;  // at the last action
};

}  // namespace horavex
