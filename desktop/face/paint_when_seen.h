#pragma once

#include <QAbstractNativeEventFilter>
#include <QPointer>
#include <QWidget>

namespace horavex {

/// Lets a window paint only while somebody may see it, and once when it is seen again: not while it
/// is minimised, nor while it is covered as a whole, which a display tells that does not compose
/// its windows. It belongs to the window.
class PaintWhenSeen : public QObject, private QAbstractNativeEventFilter {
public:
    explicit PaintWhenSeen(QWidget& window);

    /// Another window of the program's covers this one, whichever of them was activated last being
    /// in front, until it is hidden.
    void LieBeneath(QWidget& cover);

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;
    void HearOfCovers() const;
    void Follow();

    QWidget& window_;
    QPointer<QWidget> cover_;
    bool isBeneath_ = false;  // the cover
    bool isCovered_ = false;  // by whatever it is
};

}  // namespace horavex
