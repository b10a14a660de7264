#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "support/test_platform.h"
#include "terminal/forms/form_sheets.h"

namespace horavex {

/// The windows of the program on a screen in memory, over ports in memory. What waits for the user
/// gets the keys that were laid out for it.
class DeskScreen {
public:
    explicit DeskScreen(int rows = 24, int columns = 80, FormSheets::Maker special = NoneSpecial);

    /// Presses a key and draws what has become of it.
    void Press(const KeyPress& key);
    void Press(KeyCode code) { Press(KeyPress{code}); }
    void Type(const std::string& text);
    void PressAlt(char32_t letter) { Press(CharacterKey(letter, true)); }

    /// Keys for the next thing that waits for the user, one after the other.
    void LayOut(const std::vector<KeyPress>& keys) {
        keys_.insert(keys_.end(), keys.begin(), keys.end());
    }

    /// The screen as rows of text, and as one text.
    std::vector<std::string> Rows();
    std::string Text();

    /// The look of the first place of a text that is on the screen.
    Look LookOf(const std::string& text);

    void SetSize(int rows, int columns);
    const Cells& Shown();

    /// Done once, as soon as something waits for the user and no keys are laid out for it.
    std::function<void()> whileWaiting;

    Desk desk;
    FormSheet::Host host;
    std::vector<std::string> timersOf;  // forms whose timers run
    FormSheets sheets;

    static std::shared_ptr<FormSheet> NoneSpecial(Form&, FormSheet::Host&) { return nullptr; }

private:
    void RunWhile(const std::function<bool()>& isSo);

    std::deque<KeyPress> keys_;
    Cells shown_{0, 0};
};

}  // namespace horavex
