#pragma once

#include <functional>
#include <stdexcept>

#include "terminal/screen/cells.h"
#include "terminal/screen/key_press.h"

namespace horavex {

/// There is no terminal that a face could be drawn in; the text says why and what to do.
class NoTerminal : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The terminal of the process, put into the mode of a full screen as long as this lives, and given
/// back as it was by the end of it. Only what has changed is written.
class CursesScreen {
public:
    /// Throws NoTerminal where there is no terminal, or one that cannot move its cursor.
    CursesScreen();
    ~CursesScreen();
    CursesScreen(const CursesScreen&) = delete;
    CursesScreen& operator=(const CursesScreen&) = delete;

    int Rows() const;
    int Columns() const;

    /// False where the terminal has none, and where NO_COLOR asks for none.
    bool HasColours() const { return hasColours_; }

    void Show(const Cells& cells);

    /// False once the terminal has gone.
    bool HasInput() const;

    /// Takes the keys that have come. Never waits.
    void ReadKeys(const std::function<void(const KeyPress&)>& take);

    /// The terminal has another size.
    void TakeSize();

    /// Gives the terminal back for a while, and takes it again.
    void Leave();
    void Return();

    /// Writes the whole screen anew, over what another program has written there.
    void Redraw();

    void Beep();

private:
    void SetUpColours();
    void PutCell(int row, int column, const Cell& cell);
    int PairOf(const Look& look);

    bool hasColours_ = false;
    bool isLeft_ = false;
};

}  // namespace horavex
