#pragma once

#include <string>
#include <vector>

#include "platform/dialogs.h"

namespace horavex {

/// Writes down each message box and closes it at once; answers for the user who chooses a file to
/// open or to save.
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

    std::string OpenFile(const FileRequest& request) override {
        fileRequests.push_back(request);
        return chosenFile;
    }

    void Beep() override { ++beeps; }

    std::string SaveFile(const FileRequest& request, const std::string& suffix) override {
        saveRequests.push_back({request, suffix});
        return savedFile;
    }

    struct SaveRequest {
        FileRequest request;
        std::string suffix;
    };

    std::vector<Message> messages;
    std::vector<FileRequest> fileRequests;
    std::string chosenFile;  // empty for a user who cancels
    std::vector<SaveRequest> saveRequests;
    std::string savedFile;  // empty for a user who cancels
    int beeps = 0;
};

}  // namespace horavex
