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

    std::vector<Message> messages;
};

}  // namespace horavex
