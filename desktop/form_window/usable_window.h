#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QWidget>
#include <QWindow>

namespace horavex {

/// Keeps a window usable whatever of the program's is open. What belongs to the topmost modal
/// window is not shut off by it, and what belongs to a window that fills the screen stands over it.
class UsableWindow : public QObject {
public:
    explicit UsableWindow(QWidget& window) : window_(window) {}

    /// Has the window, which has one of the platform, belong to what fills the screen, else to its
    /// usual owner, else to the topmost modal window. Once that goes, it does so again.
    void Belong(QWindow* usual = nullptr);

    /// Tells the display what the window belongs to, once it is shown.
    void TellOwner() const;

private:
    void BelongAnew();

    QWidget& window_;
    QPointer<QWindow> usual_;
    QMetaObject::Connection owner_;  // to what the window belongs to
};

/// What all windows of the program are sent by TellScreenFilled, once one of them fills a screen.
QEvent::Type ScreenFilled();
void TellScreenFilled();

/// What a box of the toolkit's is to stand over: the active window, or else what fills the screen;
/// nullptr for neither.
QWidget* WindowInFront();

/// Deletes a window that is not needed any more. A dialogue over it is its child, and must not be
/// taken along while it is open.
void DeleteBehindDialogs(QWidget& window);

}  // namespace horavex
