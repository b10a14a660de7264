#include "terminal/desk_screen.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "base/utf8.h"
#include "terminal/screen/glyphs.h"

namespace horavex {

DeskScreen::DeskScreen(int rows, int columns, FormSheets::Maker special)
    : desk([this](const Cells& cells) { shown_ = cells; }, [](const std::function<void()>&) {}),
      host{desk, [](Control&) {}, [this](const std::function<bool()>& isSo) { RunWhile(isSo); },
           true},
      sheets(host,
             {[this](Form& form) { timersOf.push_back(form.Name()); },
              [this](Form& form) { std::erase(timersOf, form.Name()); }},
             std::move(special)) {
    desk.SetSize(rows, columns);
}

void DeskScreen::RunWhile(const std::function<bool()>& isSo) {
    while (isSo()) {
        if (keys_.empty() && whileWaiting) {
            std::exchange(whileWaiting, nullptr)();
            continue;
        }
        if (keys_.empty()) {
            throw std::runtime_error("no key for what waits:\n" + Text());
        }
        const KeyPress key = keys_.front();
        keys_.pop_front();
        Press(key);
    }
}

void DeskScreen::Press(const KeyPress& key) {
    desk.Draw();  // keys go by what is to be seen
    desk.Press(key);
    desk.Draw();
}

void DeskScreen::Type(const std::string& text) {
    const std::u32string characters = DecodeUtf8(text).value();
    for (const char32_t character : characters) {
        Press(CharacterKey(character));
    }
}

const Cells& DeskScreen::Shown() {
    desk.Draw();
    return shown_;
}

std::vector<std::string> DeskScreen::Rows() {
    return Shown().Texts();
}

std::string DeskScreen::Text() {
    std::string text;
    for (const std::string& row : Rows()) {
        text += row + "\n";
    }
    return text;
}

Look DeskScreen::LookOf(const std::string& text) {
    const std::vector<std::string> rows = Rows();
    for (std::size_t row = 0; row < rows.size(); ++row) {
        const std::size_t at = rows[row].find(text);
        if (at != std::string::npos) {
            return Shown().At(static_cast<int>(row), WidthOf(rows[row].substr(0, at))).look;
        }
    }
    throw std::runtime_error(text + " is not on the screen:\n" + Text());
}

void DeskScreen::SetSize(int rows, int columns) {
    desk.SetSize(rows, columns);
}

}  // namespace horavex
