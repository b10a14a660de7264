#pragma once

#include <QObject>
#include <QWidget>

namespace horavex {

/// Keeps a window usable whatever of the program's is open. What belongs to the topmost modal
/// window is not shut off by it, and what belongs to a window that fills the screen stands over it.
class UsableWindow : public QObject {
public:
    explicit UsableWindow(QWidget& window) : window_(window) {}

    /// Has the window, which has one of the platform, belong to what is open now. Once that goes,
    /// it does so again.
    void Belong();

private:
    QWidget& window_;
    QMetaObject::Connection owner_;  // to what the window belongs to
};

/// Deletes a window that is not needed any more. A dialogue over it is its child, and must not be
/// taken along while it is open.
void DeleteBehindDialogs(QWidget& window);

}  // namespace horavex
