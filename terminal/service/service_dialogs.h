#pragma once

#include "linux/sound/beep.h"
#include "platform/dialogs.h"
#include "terminal/service/service_log.h"

namespace horavex {

/// Boxes become lines of the log, and nobody chooses a file.
class ServiceDialogs : public Dialogs {
public:
    ServiceDialogs(const ServiceLog& log, PulsePlayer::Post post)
        : log_(log), beep_(std::move(post), [] {}) {}

    void ShowMessage(const std::string& text, const std::string&, MessageIcon icon) override {
        log_.Write(icon == MessageIcon::kInformation ? Severity::kInformation : Severity::kWarning,
                   text);
    }
    std::string OpenFile(const FileRequest&) override { return {}; }
    void Beep() override { beep_.Sound(); }
    std::string SaveFile(const FileRequest&, const std::string&) override { return {}; }

private:
    const ServiceLog& log_;
    horavex::Beep beep_;
};

}  // namespace horavex
