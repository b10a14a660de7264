#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/help_view.h"
#include "terminal/forms/text_widgets.h"
#include "terminal/screen/sheet.h"
#include "terminal/sheets/help_text.h"

namespace horavex {

/// The help, a page at a time over the whole screen. The arrow keys go through it and from page to
/// page; "/" looks for a text, "n" for it again, on all pages.
class HelpSheet : public Sheet {
public:
    /// The text of a page's file; empty where it cannot be read.
    using Read = std::function<std::string(const std::string& path)>;

    HelpSheet(HelpView view, Read read, std::function<void()> close);

    void Draw(Cells& screen) override;
    void Press(const KeyPress& key) override;

    void Turn(const HelpView& view);

    /// It lies over whatever waits for the user, and takes the keys until it is closed.
    bool IsModal() const override { return true; }

private:
    struct Line {
        std::string text;
        bool isHeading;
        bool goesOn;  // with the paragraph of the line before
    };

    void OpenPage(std::size_t page);
    void TurnPage(int step);
    void Scroll(int lines);
    bool FindFrom(std::size_t page, std::size_t line);
    bool FindNext();
    void EndTyping(KeyCode by);
    std::vector<Line> LinesOf(std::size_t page, int width) const;
    void PressInSearch(const KeyPress& key);
    bool FromRight() const;

    HelpView view_;
    Read read_;
    std::function<void()> close_;
    std::size_t page_ = 0;
    std::vector<Line> lines_;
    int width_ = 0;   // columns that the lines are broken for
    int height_ = 1;  // rows when it was last drawn
    int first_ = 0;
    std::optional<std::size_t> found_;  // line of the page, until it is moved through
    bool isTyping_ = false;             // what to look for
    std::string sought_;
    EditedLine typed_;
};

}  // namespace horavex
