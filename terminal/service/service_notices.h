#pragma once

#include "terminal/ports/terminal_notices.h"
#include "terminal/service/service_log.h"

namespace horavex {

/// Writes into the log, too, what was missed. There is no face that a button could open.
class ServiceNotices : public TerminalNotices {
public:
    ServiceNotices(PollEventLoop& loop, const ServiceLog& log) : TerminalNotices(loop), log_(log) {}

    void Show(NoticeKind kind, const Notice& notice) override {
        Notice shown = notice;
        shown.openCaption.clear();
        TerminalNotices::Show(kind, shown);
        if (kind == NoticeKind::kMissed) {
            log_.Write(Severity::kNotice, "missed: " + notice.title);
        }
    }

private:
    const ServiceLog& log_;
};

}  // namespace horavex
