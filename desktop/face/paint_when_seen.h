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

    /// Another window of the program's, which fills a screen, covers this one: as long as it is the
    /// active one and this lies in its area as a whole.
    void LieBeneath(QWidget& cover);

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;
    void HearOfCovers() const;
    bool IsBeneath() const;
    void Follow();

    QWidget& window_;
    QPointer<QWidget> cover_;
    bool isCovered_ = false;  // by whatever it is
};

}  // namespace horavex
