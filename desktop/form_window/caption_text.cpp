#include "desktop/form_window/caption_text.h"

#include <QRegularExpression>
#include <algorithm>

#include "desktop/form_window/widget_names.h"
#include "desktop/user_text.h"

namespace horavex {

namespace {

const QChar kIsolate(0x2068);  // begins a text with a direction of its own
const QChar kEndIsolate(0x2069);

bool HasLetter(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

// Positive for right to left, negative for left to right.
int Vote(const Control& control) {
    if (!control.Has(Property::kCaption)) {
        return 0;
    }
    const QString caption = QString::fromStdString(control.Caption());
    if (!HasLetter(caption)) {
        return 0;
    }
    return caption.isRightToLeft() ? 1 : -1;
}

}  // namespace

Qt::LayoutDirection DirectionOfCaptions(const Form& form) {
    int votes = 0;
    for (Control* control : form.Controls()) {
        votes += HasWidget(*control) && control->Visible() ? Vote(*control) : 0;
    }
    return votes > 0 ? Qt::RightToLeft : Qt::LeftToRight;
}

QString ShownText(const QString& text, const QWidget& widget) {
    if (!text.isRightToLeft() && widget.layoutDirection() == Qt::LeftToRight) {
        return text;
    }
    return kIsolate + text + kEndIsolate;
}

QString ShownCaption(const Control& control, const QWidget& widget) {
    return ShownText(WithoutBrokenKey(UserText(control.Caption())), widget);
}

QString WithoutBrokenKey(const QString& caption) {
    return caption.isRightToLeft() ? SpokenText(caption) : caption;
}

// A blank behind the sign makes it an "and".
QString SpokenText(QString caption) {
    static const QRegularExpression key(QStringLiteral(R"(&(?=\S))"));
    return caption.remove(key);
}

}  // namespace horavex
