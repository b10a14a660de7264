#pragma once

#include "platform/absent_desktop.h"
#include "terminal/service/service_log.h"

namespace horavex {

/// Writes into the log what was missed.
class ServiceNotices : public AbsentNotices {
public:
    explicit ServiceNotices(const ServiceLog& log) : log_(log) {}

    void Show(NoticeKind kind, const Notice& notice) override {
        AbsentNotices::Show(kind, notice);
        if (kind == NoticeKind::kMissed) {
            log_.Write(Severity::kNotice, "missed: " + notice.title);
        }
    }

private:
    const ServiceLog& log_;
};

}  // namespace horavex
