#pragma once

#include <QAbstractButton>
#include <QWidget>
#include <functional>
#include <string>

namespace horavex {

class TextLine;

/// The face of the athan window, a still one: a crescent over the prayer's text, place and time
/// below, and a button to stop. It knows its variables and its one command by their names.
class AzanView : public QWidget {
public:
    /// isWhole: its window may stand on the screen as a whole, as it does where the display and not
    /// the program puts windows in their place. Else its lowest part is below the screen, and what
    /// is drawn keeps to the rest.
    explicit AzanView(bool isWhole);
    AzanView();

    /// Takes a value over; a variable that the face does not have is ignored.
    void SetVariable(const std::string& name, const QString& value);

    /// Names the button to stop, for assistive tools and whoever points at it.
    void NameStop(const QString& name);

    /// What the user asks for.
    std::function<void(const std::string& command)> onCommand;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    TextLine* text_;
    TextLine* place_;
    QAbstractButton* stop_;
    int below_;  // the screen, of the height, pixels
    int down_;   // how far everything stands below its place in the smaller part, pixels
};

}  // namespace horavex
