#include "desktop/ports/qt_network.h"

#include <QApplication>
#include <QWidget>

namespace horavex {

namespace {

// Takes no input: a second click on the same button waits for the end of the fetch.
void PaintWindows() {
    QCoreApplication::sendPostedEvents();  // what the forms have changed, and its layout
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible()) {
            window->repaint();
        }
    }
}

}  // namespace

Bytes QtNetwork::Get(const std::string& address) {
    PaintWindows();
    return SystemNetwork::Get(address);
}

SignedBody QtNetwork::GetSigned(const std::string& address, const std::string& key) {
    PaintWindows();
    return SystemNetwork::GetSigned(address, key);
}

}  // namespace horavex
