#pragma once

#include <string>

#include "terminal/sheets/ending_sheet.h"

namespace horavex {

/// A box with a text and a button, which any of the keys that press one closes.
class MessageSheet : public EndingSheet {
public:
    MessageSheet(std::string title, std::string text);

    void Draw(Cells& screen) override;
    void Press(const KeyPress& key) override;

private:
    std::string title_;
    std::string text_;
};

/// A question that is answered with yes or no.
class QuestionSheet : public EndingSheet {
public:
    explicit QuestionSheet(std::string text) : text_(std::move(text)) {}

    void Draw(Cells& screen) override;
    void Press(const KeyPress& key) override;
    bool IsYes() const { return isYes_; }

private:
    std::string text_;
    bool isYes_ = false;
};

}  // namespace horavex
