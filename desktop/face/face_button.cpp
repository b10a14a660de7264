#include "desktop/face/face_button.h"

#include <QKeyEvent>
#include <QPainter>
#include <cmath>

#include "desktop/face/fitted_text.h"
#include "desktop/face/palette.h"
#include "desktop/face/sky_colours.h"

namespace horavex {

namespace {

constexpr double kCorner = 5.0;  // radius, pixels
constexpr int kPadding = 9;      // beside a text, pixels
constexpr int kTypeSize = 14;    // pixels
constexpr int kHeadingSize = 21;

QRectF Outline(const QWidget& widget) {
    return QRectF(widget.rect()).adjusted(1.0, 1.0, -1.0, -1.0);
}

}  // namespace

FaceButton::FaceButton(QWidget* parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
}

void FaceButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintGround(painter);
    painter.setPen(kCream);
    painter.setBrush(Qt::NoBrush);
    PaintFace(painter);
}

void FaceButton::PaintGround(QPainter& painter) const {
    const bool isRinged = isDown() || (hasFocus() && reachedByKey_);
    painter.setPen(isRinged ? QPen(kGold, 2.0) : QPen(Qt::NoPen));
    if (isDown()) {
        painter.setBrush(kPressed);
    } else if (underMouse()) {
        painter.setBrush(kGlow);
    }
    painter.drawRoundedRect(Outline(*this), kCorner, kCorner);
}

void FaceButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
    } else {
        QAbstractButton::keyPressEvent(event);
    }
}

void FaceButton::focusInEvent(QFocusEvent* event) {
    const Qt::FocusReason reason = event->reason();
    reachedByKey_ = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
    QAbstractButton::focusInEvent(event);
}

CaptionButton::CaptionButton(QWidget* parent, Look look) : FaceButton(parent), look_(look) {}

QFont CaptionButton::Type() const {
    return look_ == Look::kHeading ? FaceFont(kHeadingSize, true) : FaceFont(kTypeSize);
}

int CaptionButton::NaturalWidth() const {
    const double width = QFontMetricsF(Type()).horizontalAdvance(text());
    return static_cast<int>(std::ceil(width)) + 2 * kPadding;
}

void CaptionButton::PaintFace(QPainter& painter) {
    if (look_ == Look::kOutlined) {
        painter.setPen(EdgeOfFace());
        painter.drawRoundedRect(Outline(*this), kCorner, kCorner);
    }
    painter.setPen(look_ == Look::kHeading ? kGold : kCream);
    DrawFitted(painter, QRectF(rect()).adjusted(kPadding, 0.0, -kPadding, 0.0), Qt::AlignCenter,
               Type(), text());
}

SignButton::SignButton(QWidget* parent, Sign sign) : FaceButton(parent), sign_(sign) {}

void SignButton::PaintFace(QPainter& painter) {
    const QRectF sign = QRectF(rect()).adjusted(8.0, 8.0, -8.0, -8.0);
    painter.setPen(QPen(underMouse() ? kCream : kMuted, 1.6, Qt::SolidLine, Qt::RoundCap));
    if (sign_ == Sign::kWhole) {
        painter.drawRect(sign);
    } else if (sign_ == Sign::kClose) {
        painter.drawLine(sign.topLeft(), sign.bottomRight());
        painter.drawLine(sign.topRight(), sign.bottomLeft());
    } else {
        painter.drawLine(QPointF(sign.left(), sign.center().y()),
                         QPointF(sign.right(), sign.center().y()));
    }
}

}  // namespace horavex
