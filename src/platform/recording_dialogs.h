#pragma once

#include <string>
#include <vector>

#include "platform/dialogs.h"

namespace horavex {

/// Writes down each message box and closes it at once.
class RecordingDialogs : public Dialogs {
public:
    struct Message {
        std::string text;
        std::string title;
        MessageIcon icon;
    };

    void ShowMessage(const std::string& text, const std::string& title, MessageIcon icon) override {
        messages.push_back({text, title, icon});
    }

    void Beep() override { ++beeps; }

    std::vector<Message> messages;
    int beeps = 0;
};

}  // namespace horavex
