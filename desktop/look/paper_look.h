#pragma once

#include <QPalette>
#include <QWidget>

namespace horavex::look {

/// Dresses a window for paper while this lives: dark texts on light ground, whatever it has on. The
/// screen shows nothing of it, unless events are handled meanwhile.
class PaperLook {
public:
    explicit PaperLook(QWidget& window);
    ~PaperLook();
    PaperLook(const PaperLook&) = delete;
    PaperLook& operator=(const PaperLook&) = delete;

private:
    QWidget& window_;
    QPalette own_;  // what the window had on by itself; nothing for what all windows have
};

/// The colours for signs, which know nothing of the window around them.
QPalette PaletteOfSigns();

}  // namespace horavex::look
