#pragma once

#include <string>

namespace horavex {

struct ScreenSize {
    double width;   // twips
    double height;  // twips
};

/// The lower right corner of the area that no panel covers, from the upper left of the screens.
struct ScreenCorner {
    double right;   // twips
    double bottom;  // twips
};

/// What windows need of the desktop beyond the life of their forms. Forms and menus are named as
/// the system names them. Never fails; a compositor that refuses leaves things as they are.
class Windows {
public:
    virtual ~Windows() = default;

    /// The screen that the program's face is on.
    virtual ScreenSize Screen() = 0;

    /// Of the screen that the program's face is on.
    virtual ScreenCorner WorkArea() = 0;

    /// Lets the user move the form with the mouse button that is down.
    virtual void StartDrag(const std::string& form) = 0;

    /// Opens a menu of the form at a place of its inside, in pixels, and returns when it is
    /// closed again.
    virtual void PopUpMenu(const std::string& form, const std::string& menu, int x, int y) = 0;

    /// The same at the place of the pointer.
    virtual void PopUpMenuAtPointer(const std::string& form, const std::string& menu) = 0;

    /// Gives the keyboard to a window on view.
    virtual void Activate(const std::string& form) = 0;

    /// Puts a window on view above the others and gives it the keyboard.
    virtual void SetForeground(const std::string& form) = 0;

    /// Keeps a window above all others from now on, or no longer. It keeps its place and gets no
    /// keyboard.
    virtual void SetTopMost(const std::string& form, bool topMost) = 0;
    /// Prints a window on view as it looks, on the printer that the user chooses; nothing where
    /// the user chooses none.
    virtual void Print(const std::string& form) = 0;
};

}  // namespace horavex
