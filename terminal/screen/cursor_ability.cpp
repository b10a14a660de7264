#include "terminal/screen/cursor_ability.h"

// Its macros bear common words, so that it is included here alone.
#include <curses.h>
#include <term.h>
#include <unistd.h>

namespace horavex {

bool CanMoveCursor() {
    int error = 0;
    if (::setupterm(nullptr, STDOUT_FILENO, &error) != OK) {
        return false;
    }
    char* const move = ::tigetstr("cup");
    return move != nullptr && move != reinterpret_cast<char*>(-1);
}

}  // namespace horavex
