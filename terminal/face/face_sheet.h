#pragma once

#include <array>
#include <string>

#include "terminal/face/terminal_face.h"
#include "terminal/forms/form_sheet.h"

namespace horavex {

/// The face over the whole screen: the menus, the dates, the countdown, the times of the day, the
/// compass and the sun's way. A low screen leaves out the way first and then the large digits.
class FaceSheet : public FormSheet {
public:
    FaceSheet(Form& form, Host& host, TerminalFace& face);

    void Draw(Cells& screen) override;
    void Press(const KeyPress& key) override;

    /// Where a menu opens, below its title.
    CellPlace PlaceOf(const std::string& menu) const;

    /// The menu that is open was left for a neighbour.
    void StepFromMenu(int step) { step_ = step; }

private:
    static constexpr std::size_t kMenus = 4;

    std::string TitleOf(std::size_t menu) const;
    std::array<char32_t, kMenus> MenuKeys() const;
    int TitleGap() const;
    std::string ClockText() const;
    void OpenMenu(std::size_t menu);
    void DrawMenus(Cells& screen) const;
    int DrawHeader(Cells& screen, int row) const;
    int DrawCountdown(Cells& screen, int row, bool large) const;
    void DrawTimes(Cells& screen, const Area& area) const;
    void DrawCompass(Cells& screen, CellPlace at) const;

    TerminalFace& face_;
    int step_ = 0;
};

}  // namespace horavex
