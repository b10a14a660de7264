#pragma once

#include <QEvent>
#include <QLineEdit>
#include <string>

namespace horavex {

/// The line of a control that users type into. It shows the control's text in the digits that they
/// chose; what they type stays as they typed it, in digits of either kind, until they leave it.
class TypedLine {
public:
    /// The user has made this the line's text.
    void Type(const QString& typed) { typed_ = typed; }

    /// Shows the text of the control, with the cursor where it is unless the text is another one.
    void Show(QLineEdit& line, const std::string& text) const;

    /// True for the event by which the user leaves the line with something typed in it, which may
    /// then be shown anew. A menu over the line does not leave it.
    bool IsLeftBy(const QEvent& event);

private:
    QString typed_;  // as long as the user is in the line
};

}  // namespace horavex
