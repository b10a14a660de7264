#pragma once

#include <QAbstractButton>

namespace horavex {

/// A button of the face. It shows that the pointer is over it, that it is pressed, and, for
/// users of the keyboard, that it has the focus; the return key presses it as the blank does.
class FaceButton : public QAbstractButton {
public:
    explicit FaceButton(QWidget* parent);

protected:
    /// Draws what the button is, over its ground.
    virtual void PaintFace(QPainter& painter) = 0;

    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    void PaintGround(QPainter& painter) const;

    bool reachedByKey_ = false;
};

/// A button with its text. A heading has no ground of its own and larger type.
class CaptionButton : public FaceButton {
public:
    enum class Look { kMenu, kOutlined, kHeading };

    CaptionButton(QWidget* parent, Look look);

    /// The width in pixels that shows the whole text.
    int NaturalWidth() const;

protected:
    void PaintFace(QPainter& painter) override;

private:
    QFont Type() const;

    Look look_;
};

/// A button with a sign of the window's frame.
class SignButton : public FaceButton {
public:
    enum class Sign { kClose, kMinimise, kWhole };

    SignButton(QWidget* parent, Sign sign);

protected:
    void PaintFace(QPainter& painter) override;

private:
    Sign sign_;
};

}  // namespace horavex
