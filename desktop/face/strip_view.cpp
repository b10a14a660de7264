#include "desktop/face/strip_view.h"

#include <QMouseEvent>
#include <QPainter>

#include "desktop/face/countdown_line.h"
#include "desktop/face/face_button.h"
#include "desktop/face/face_day.h"
#include "desktop/face/palette.h"
#include "desktop/face/text_line.h"
#include "sky/day_sky.h"

namespace horavex {

namespace {

// Pixels.
constexpr QRect kStrip(0, 0, 360, 44);
constexpr QRect kNext(14, 2, 190, 40);
constexpr QRect kCountdown(204, 2, 114, 40);
constexpr QRect kWhole(326, 9, 26, 26);

const TextLine::Look kNextLook{17, kCream, Qt::AlignLeading | Qt::AlignVCenter};
const TextLine::Look kCountdownLook{25, kGold, Qt::AlignCenter};

}  // namespace

StripView::StripView()
    : ground_({kStrip, {}, {}, {}}),
      next_(new TextLine(this, kNextLook)),
      countdown_(new TextLine(this, kCountdownLook)),
      whole_(new SignButton(this, SignButton::Sign::kWhole)) {
    setFixedSize(kStrip.size());
    setContextMenuPolicy(Qt::PreventContextMenu);
    next_->setGeometry(kNext);
    countdown_->setGeometry(kCountdown);
    whole_->setGeometry(kWhole);
    setFocusProxy(whole_);
    whole_->setObjectName(QStringLiteral("IDC_FS_small"));
    const QString name = DesktopWord("NormalSize");
    whole_->setAccessibleName(name);
    whole_->setToolTip(name);
    connect(whole_, &QAbstractButton::clicked, this, [this] { Tell("IDC_FS_small"); });
}

void StripView::ShowDay(const FaceDay& day) {
    const PrayerEntry& next = day.rows.at(day.next);
    next_->ShowText(next.name + QStringLiteral("  ") + next.time);
    countdown_->ShowText(CountdownDigits(day.seconds));
    if (day.sky != nullptr && day.sky != sky_) {
        sky_ = day.sky;
        ground_.ShowSun(sky_->sunAltitude);
        update();
    }
}

void StripView::Tell(const char* command) {
    if (onCommand) {
        onCommand(command);
    }
}

void StripView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        Tell("IDC_FS_drag");
    }
}

void StripView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    ground_.Paint(painter, event->rect(), devicePixelRatioF());
}

}  // namespace horavex
