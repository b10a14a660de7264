#include "desktop/ports/qt_dialogs.h"

#include <QApplication>
#include <QMessageBox>

namespace horavex {

namespace {

constexpr const char* kTitle = "Horavex";

QMessageBox::Icon IconOf(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::kInformation:
            return QMessageBox::Information;
        case MessageIcon::kExclamation:
            return QMessageBox::Warning;
        case MessageIcon::kCritical:
            return QMessageBox::Critical;
        case MessageIcon::kNone:
            break;
    }
    return QMessageBox::NoIcon;
}

}  // namespace

void QtDialogs::ShowMessage(const std::string& text, const std::string& title, MessageIcon icon) {
    const QString message = QString::fromStdString(text);
    QMessageBox box(IconOf(icon), QString::fromStdString(title.empty() ? kTitle : title), message,
                    QMessageBox::Ok, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setLayoutDirection(message.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    box.exec();
}

void QtDialogs::Beep() {
    QApplication::beep();
}

}  // namespace horavex
