#include "desktop/ports/qt_dialogs.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

namespace horavex {
namespace {

/// Shows a box, looks at it while it is open, and closes it.
template <class Look>
void Show(const std::string& text, const std::string& title, MessageIcon icon, Look look) {
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        look(*box);
        box->accept();
    });
    QtDialogs([] {}).ShowMessage(text, title, icon);
}

TEST(QtDialogs, BoxShowsTextTitleIconAndOneButton) {
    Show("a <b>text</b>", "A title", MessageIcon::kCritical, [](const QMessageBox& box) {
        EXPECT_EQ(box.text(), "a <b>text</b>");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.windowTitle(), "A title");
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
    });
}

TEST(QtDialogs, EmptyTitleIsTheApplications) {
    Show("text", "", MessageIcon::kNone, [](const QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), "Horavex");
        EXPECT_EQ(box.icon(), QMessageBox::NoIcon);
    });
}

TEST(QtDialogs, ArabicTextTurnsTheBoxRound) {
    Show("خطأ في الإدخال", "", MessageIcon::kExclamation, [](const QMessageBox& box) {
        EXPECT_EQ(box.layoutDirection(), Qt::RightToLeft);
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
    });
}

}  // namespace
}  // namespace horavex
