#pragma once

#include "e2e/harness/service.h"

namespace horavex {

/// A panel with a notification area at the lower edge of the display, which takes icons in over
/// the XEmbed protocol.
class TrayHost {
public:
    explicit TrayHost(const Environment& variables)
        : service_({"trayer", "--edge", "bottom", "--align", "right", "--widthtype", "request",
                    "--height", "26", "--SetDockType", "true", "--expand", "true"},
                   variables) {}

    pid_t Id() const { return service_.Id(); }

private:
    Service service_;
};

}  // namespace horavex
