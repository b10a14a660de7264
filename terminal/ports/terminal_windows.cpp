#include "terminal/ports/terminal_windows.h"

#include "terminal/face/face_sheet.h"
#include "terminal/sheets/item_menu.h"

namespace horavex {

namespace {

constexpr double kTwipsPerColumn = 120.0;
constexpr double kTwipsPerRow = 240.0;

}  // namespace

ScreenSize TerminalWindows::Screen() {
    return {desk_.Columns() * kTwipsPerColumn, desk_.Rows() * kTwipsPerRow};
}

ScreenCorner TerminalWindows::WorkArea() {
    return {desk_.Columns() * kTwipsPerColumn, desk_.Rows() * kTwipsPerRow};
}

// The keys that leave a menu sideways lead to its neighbour on the face.
void TerminalWindows::PopUpMenu(const std::string& form, const std::string& menu, int, int) {
    const auto face = std::dynamic_pointer_cast<FaceSheet>(sheets_.Find(form));
    const MenuItem* item = face == nullptr ? nullptr : FindMenu(face->Shown(), menu);
    if (item != nullptr) {
        face->StepFromMenu(
            RunItemMenu(*item, {face->PlaceOf(menu), false, true}, sheets_.Surroundings()));
    }
}

void TerminalWindows::PopUpMenuAtPointer(const std::string& form, const std::string& menu) {
    const auto sheet = sheets_.Find(form);
    const MenuItem* item = sheet == nullptr ? nullptr : FindMenu(sheet->Shown(), menu);
    if (item != nullptr) {
        RunItemMenu(*item, {}, sheets_.Surroundings());
    }
}

void TerminalWindows::Activate(const std::string& form) {
    const auto sheet = sheets_.Find(form);
    if (sheet != nullptr && sheet->Shown().Visible()) {
        desk_.BringUp(sheet);
    }
}

}  // namespace horavex
