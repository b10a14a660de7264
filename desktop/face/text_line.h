#pragma once

#include <QColor>
#include <QLabel>

namespace horavex {

/// One line of text of the face, in smaller type or cut where it is too wide.
class TextLine : public QLabel {
public:
    struct Look {
        int pixels;
        QColor colour;
        Qt::Alignment alignment;
    };

    TextLine(QWidget* parent, Look look);

    /// Paints anew only for another text.
    void ShowText(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Look look_;
};

}  // namespace horavex
