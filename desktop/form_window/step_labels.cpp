#include "desktop/form_window/step_labels.h"

#include <QLabel>

#include "desktop/form_window/accessible_names.h"
#include "desktop/user_text.h"

namespace horavex {

namespace {

void ShowStep(QLabel& label, int number, const QWidget& window, bool onView) {
    label.setTextFormat(Qt::PlainText);
    label.setText(UserText(QString::number(number)) + QStringLiteral(". ") +
                  NamesOfOthers(window, label, "stepOf"));
    QFont font = window.font();
    font.setBold(onView);
    label.setFont(font);
    label.setFrameShape(onView ? QFrame::StyledPanel : QFrame::NoFrame);
}

}  // namespace

void ShowSteps(const QWidget& window) {
    int number = 0;
    for (QLabel* label : window.findChildren<QLabel*>()) {
        const auto* page = window.findChild<QWidget*>(label->property("stepOf").toString());
        if (label->property("stepOf").isValid() && page != nullptr) {
            ShowStep(*label, ++number, window, !page->isHidden());
        }
    }
}

}  // namespace horavex
